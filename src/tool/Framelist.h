// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "tool/StripImages.h"

namespace velra {

class PropertyBag;

/// What the person does on the strip, and what its pixels must follow. The two numbers of a click
/// are list position and tag.
struct FramelistEvents {
  std::function<void(std::int16_t, std::int16_t)> Click;
  std::function<void(std::int16_t, std::int16_t)> DblClick;
  std::function<void(std::string_view)> PropertyChanged;
  std::function<void()> Repaint;
};

/// A strip of pictures in order of time, with a scroll bar below it. A list position is the order
/// of adding and counts from 1, as the owner's list does; a tag is the place on the strip. Lengths
/// are twips, colours 0x00bbggrr; -1 means that nothing is selected.
class Framelist {
 public:
  using Image = StripImage;

  struct ScrollBar {
    static constexpr double kHeight = 255;
    std::int16_t value = 0;
    std::int16_t max = 0;
    std::int16_t largeChange = 0;
    std::int16_t smallChange = 0;
    bool visible = false;
  };

  static constexpr double kMargin = 50;  // around a picture in its cell
  static constexpr int kShiftArgument = 1;

  FramelistEvents events;

  // Properties.
  std::int32_t SquareColor() const { return SquareColor_; }
  void setSquareColor(std::int32_t colour);
  std::int32_t StartSquareColor() const { return StartSquareColor_; }
  void setStartSquareColor(std::int32_t colour);
  std::int16_t ImageX() const { return ImageX_; }
  void setImageX(std::int16_t width);
  std::int16_t ImageY() const { return ImageY_; }
  void setImageY(std::int16_t height);
  std::int16_t iCellX() const { return iCellX_; }
  std::int16_t iCellY() const { return iCellY_; }
  std::int16_t iSelectedStart() const { return iSelectedStart_; }
  void setISelectedStart(std::int16_t position);
  std::int16_t iSelectedEnd() const { return iSelectedEnd_; }
  void setISelectedEnd(std::int16_t position);

  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag) const;

  // Pictures.
  /// List position of the new picture. One that stands at its place, and all behind it, make room.
  /// kOverflow when the strip grows longer than its scroll bar can reach.
  std::int16_t iAddImage(const Picture& picture, std::int16_t place, const std::string& caption);
  void RemoveSelected();
  void RemoveImage(std::int16_t position);
  void Refresh();
  void Resize(double widthTwips);
  /// The width in which all pictures are in view.
  double panelWidth() const;
  void Scroll(std::int16_t value);

  // The mouse and the keyboard.
  void MouseDown(std::int16_t position, int shift);
  void DoubleClick(std::int16_t position);

  // For the face.
  double width() const { return width_; }
  std::int16_t Count() const { return images_.Count(); }
  const Image& image(std::int16_t position) const { return *images_.at(position); }
  const ScrollBar& scrollBar() const { return HScroll1_; }
  double panelLeft() const { return -HScroll1_.value; }
  /// Of a picture's cell, on the panel.
  double left(std::int16_t position) const { return images_.left(position); }
  /// The picture at a place on the panel; 0 for none.
  std::int16_t iImageAt(double x, double y) const;
  /// The picture next on the strip to the one at the selection's end; 0 for none. Without a
  /// selection the first (or last).
  std::int16_t iNeighbour(bool forward) const { return images_.neighbour(iSelectedEnd_, forward); }
  /// The first (or last) picture on the strip; 0 for none.
  std::int16_t iImageAtEnd(bool last) const { return images_.atEnd(last); }

 private:
  void layOut();
  void sizeScrollBar();
  void colour();
  void changed(std::string_view property) const;
  void repaint() const;

  std::int32_t SquareColor_ = 0xFFFFFF;
  std::int32_t StartSquareColor_ = 0xFFFFFF;
  std::int16_t ImageX_ = 1000;
  std::int16_t ImageY_ = 750;
  std::int16_t iCellX_ = 1100;
  std::int16_t iCellY_ = 850;
  std::int16_t iSelectedStart_ = -1;
  std::int16_t iSelectedEnd_ = -1;
  double width_ = 0;
  ScrollBar HScroll1_;
  StripImages images_;
};

}  // namespace velra
