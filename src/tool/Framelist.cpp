// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/Framelist.h"

#include <algorithm>
#include <cstdint>

#include "base/Arithmetic.h"
#include "tool/PropertyBag.h"

namespace velra {

namespace {

constexpr std::int32_t kWhiteSquare = 16777215;
constexpr std::int16_t kDefaultImageX = 1000;
constexpr std::int16_t kDefaultImageY = 750;
constexpr std::int16_t kCellMargin = 100;
constexpr double kPanelMargin = 100;

}  // namespace

void Framelist::changed(std::string_view property) const {
  if (events.PropertyChanged) events.PropertyChanged(property);
}

void Framelist::repaint() const {
  if (events.Repaint) events.Repaint();
}

void Framelist::setSquareColor(std::int32_t colour) {
  SquareColor_ = colour;
  images_.colourAll(colour);
  changed("SquareColor");
  repaint();
}

void Framelist::setStartSquareColor(std::int32_t colour) {
  StartSquareColor_ = colour;
  changed("StartSquareColor");
}

void Framelist::setImageX(std::int16_t width) {
  ImageX_ = width;
  iCellX_ = addInt16(width, kCellMargin);
  changed("ImageX");
}

void Framelist::setImageY(std::int16_t height) {
  ImageY_ = height;
  iCellY_ = addInt16(height, kCellMargin);
  changed("ImageY");
}

void Framelist::setISelectedStart(std::int16_t position) {
  if (position == 0 || position > Count()) return;
  iSelectedStart_ = position;
  iSelectedEnd_ = position;
  if (position != -1) {
    images_.showOne(position);
    colour();
    repaint();
  }
  changed("iSelectedStart");
}

void Framelist::setISelectedEnd(std::int16_t position) {
  if (position == 0 || position > Count() || iSelectedStart_ == -1) return;
  iSelectedEnd_ = position;
  images_.showStretch(iSelectedStart_, iSelectedEnd_);
  colour();
  repaint();
  changed("iSelectedEnd");
}

void Framelist::ReadProperties(const PropertyBag& bag) {
  setSquareColor(bag.read("SquareColor", kWhiteSquare));
  setStartSquareColor(bag.read("StartSquareColor", kWhiteSquare));
  setImageX(toInt16(bag.read("ImageX", std::int32_t{kDefaultImageX})));
  setImageY(toInt16(bag.read("ImageY", std::int32_t{kDefaultImageY})));
  setISelectedStart(toInt16(bag.read("iSelectedStart", std::int32_t{-1})));
  setISelectedEnd(toInt16(bag.read("iSelectedEnd", std::int32_t{-1})));
}

void Framelist::WriteProperties(PropertyBag& bag) const {
  constexpr std::int32_t kNone = -1;
  bag.WriteProperty("SquareColor", SquareColor_, kWhiteSquare);
  bag.WriteProperty("StartSquareColor", StartSquareColor_, kWhiteSquare);
  bag.WriteProperty("ImageX", std::int32_t{ImageX_}, std::int32_t{kDefaultImageX});
  bag.WriteProperty("ImageY", std::int32_t{ImageY_}, std::int32_t{kDefaultImageY});
  bag.WriteProperty("iSelectedStart", std::int32_t{iSelectedStart_}, kNone);
  bag.WriteProperty("iSelectedEnd", std::int32_t{iSelectedEnd_}, kNone);
}

std::int16_t Framelist::iAddImage(const Picture& picture, std::int16_t place,
                                  const std::string& caption) {
  StripImage image;
  image.picture = picture;
  image.caption = caption;
  image.tag = place;
  image.squareColour = SquareColor_;
  images_.add(image);
  layOut();
  return Count();
}

void Framelist::RemoveImage(std::int16_t position) {
  images_.remove(position);
  layOut();
}

void Framelist::RemoveSelected() {
  if (iSelectedStart_ == -1) return;
  images_.removeStretch(iSelectedStart_, iSelectedEnd_);
  iSelectedStart_ = -1;
  iSelectedEnd_ = -1;
  layOut();
}

void Framelist::colour() {
  if (iSelectedStart_ == -1) return;
  setSquareColor(SquareColor_);
  images_.at(iSelectedStart_)->squareColour = StartSquareColor_;
}

void Framelist::layOut() {
  images_.setCellWidth(iCellX_);
  if (iSelectedStart_ != -1) {
    images_.showStretch(iSelectedStart_, iSelectedEnd_);
    colour();
  }
  sizeScrollBar();
  repaint();
}

double Framelist::panelWidth() const {
  return static_cast<double>(Count()) * iCellX_ + kPanelMargin;
}

void Framelist::sizeScrollBar() {
  HScroll1_.largeChange = iCellX_;
  HScroll1_.smallChange = toInt16(ImageX_ / 4.0);
  // On a wide screen a short strip falls short of the control by more than 16 bits hold.
  HScroll1_.max = toInt16(std::max(panelWidth() - width_, double{INT16_MIN}));
  HScroll1_.visible = width_ < panelWidth();
  Scroll(HScroll1_.value);
}

void Framelist::Refresh() {
  layOut();
}

void Framelist::Resize(double widthTwips) {
  width_ = widthTwips;
  Refresh();
}

void Framelist::Scroll(std::int16_t value) {
  const std::int16_t highest = std::max<std::int16_t>(HScroll1_.max, 0);
  HScroll1_.value = std::clamp<std::int16_t>(value, 0, highest);
  repaint();
}

void Framelist::MouseDown(std::int16_t position, int shift) {
  const bool extend = shift == kShiftArgument;
  if (extend && iSelectedStart_ == -1) return;
  iSelectedEnd_ = position;
  if (!extend) iSelectedStart_ = position;
  images_.showStretch(iSelectedStart_, iSelectedEnd_);
  colour();
  repaint();
  if (events.Click) events.Click(iSelectedStart_, images_.at(iSelectedStart_)->tag);
}

void Framelist::DoubleClick(std::int16_t position) {
  const std::int16_t tag = images_.at(position)->tag;
  MouseDown(position, 0);
  if (events.DblClick) events.DblClick(position, tag);
}

std::int16_t Framelist::iImageAt(double x, double y) const {
  if (y < kMargin || y >= kMargin + ImageY_) return 0;
  for (std::int16_t i = Count(); i >= 1; --i) {
    const double left = images_.left(i) + kMargin;
    if (x >= left && x < left + ImageX_) return i;
  }
  return 0;
}

}  // namespace velra
