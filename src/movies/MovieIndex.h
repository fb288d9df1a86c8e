// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <limits>
#include <string>

#include "movies/PictureIndex.h"

namespace velra {

class PictureReader;

/// The index of a movie's pictures, as far as the movie needs one.
struct MovieIndex : PictureIndex {
  double first = 0;     // the first picture that is decoded, in the time of the index
  bool byKeys = false;  // a key of the index is where decoding for a time begins
  double leap = std::numeric_limits<double>::infinity();  // see `PictureClock`
  double stampedLength = -1;  // in seconds, when the end is known without the whole index

  /// Whether the length is known.
  bool known() const { return (complete && sure) || stampedLength >= 0; }

  /// Seconds from the first picture to the end of the last; only when known.
  double length(double frameTime) const;
};

/// Reads the packets of a movie that has been opened, from its start: all of them where that takes
/// no longer than a first look, or where its pictures cannot be told their times otherwise. "" on
/// success, else one sentence that tells why not. Leaves the reader without a picture.
std::string indexMovie(PictureReader& reader, std::chrono::milliseconds firstLook,
                       MovieIndex& index);

}  // namespace velra
