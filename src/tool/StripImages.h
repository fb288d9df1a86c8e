// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "base/Collection.h"
#include "values/Picture.h"

namespace velra {

/// One picture of the strip. Lengths are twips, colours 0x00bbggrr.
struct StripImage {
  Picture picture;
  std::string caption;
  std::int16_t tag = 0;  // the place on the strip, from 1
  bool squareVisible = false;
  std::int32_t squareColour = 0;
};

/// The pictures of a strip with their places. A position is the order of adding and counts from 1;
/// one that no picture has raises kSubscriptOutOfRange.
class StripImages {
 public:
  std::int16_t Count() const;
  const std::shared_ptr<StripImage>& at(std::int16_t position) const;
  auto begin() const { return images_.begin(); }
  auto end() const { return images_.end(); }

  /// At the end of the list. If a picture stands at the place, it and all behind it make room.
  void add(const StripImage& image);
  /// Those behind it close the gap.
  void remove(std::int16_t position);
  /// Removes all that stand from the one picture to the other.
  void removeStretch(std::int16_t a, std::int16_t b);

  /// All are placed by cells of this width, also those that come.
  void setCellWidth(double twips) { cellWidth_ = twips; }
  /// Of the cell of a picture, on the panel.
  double left(std::int16_t position) const;

  void colourAll(std::int32_t colour);
  /// Shows the square of one picture, and no other.
  void showOne(std::int16_t position);
  /// Shows the squares of the pictures that stand from the one to the other, and no others.
  void showStretch(std::int16_t a, std::int16_t b);

  /// The picture next on the strip to the one at a position; 0 for none. If the position is that of
  /// no picture, the first (or last).
  std::int16_t neighbour(std::int16_t position, bool forward) const;
  /// The first (or last) picture on the strip; 0 for none.
  std::int16_t atEnd(bool last) const;

 private:
  void hideSquares();
  void noteTaken();

  Collection<std::shared_ptr<StripImage>> images_;
  double cellWidth_ = 0;
  std::bitset<std::size_t{UINT16_MAX} + 1> taken_;  // the places where pictures stand
};

}  // namespace velra
