// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/Framelist.h"

#include <algorithm>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "tool/PropertyBag.h"

namespace velra {

namespace {

constexpr std::int32_t kWhiteSquare = 16777215;
constexpr std::int16_t kDefaultImageX = 1000;
constexpr std::int16_t kDefaultImageY = 750;
constexpr std::int16_t kCellMargin = 100;

bool between(std::int16_t tag, std::int16_t a, std::int16_t b) {
  return tag >= std::min(a, b) && tag <= std::max(a, b);
}

}  // namespace

void Framelist::changed(std::string_view property) const {
  if (events.PropertyChanged) events.PropertyChanged(property);
}

void Framelist::repaint() const {
  if (events.Repaint) events.Repaint();
}

const std::shared_ptr<Framelist::Image>& Framelist::at(std::int16_t position) const {
  if (position < 1) raise(kSubscriptOutOfRange);
  return colImages_.Item(static_cast<std::size_t>(position));
}

std::int16_t Framelist::Count() const {
  return toInt16(static_cast<double>(colImages_.Count()));
}

void Framelist::setSquareColor(std::int32_t colour) {
  SquareColor_ = colour;
  for (const auto& image : colImages_) image->squareColour = colour;
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
    hideSquares();
    at(position)->squareVisible = true;
    colour();
    repaint();
  }
  changed("iSelectedStart");
}

void Framelist::setISelectedEnd(std::int16_t position) {
  if (position == 0 || position > Count() || iSelectedStart_ == -1) return;
  iSelectedEnd_ = position;
  hideSquares();
  showStretch(iSelectedStart_, iSelectedEnd_);
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

void Framelist::place(Image& image) const {
  image.left = (image.tag - 1) * static_cast<double>(iCellX_);
}

std::int16_t Framelist::iAddImage(const Picture& picture, std::int16_t place,
                                  const std::string& caption) {
  const auto image = std::make_shared<Image>();
  image->picture = picture;
  image->caption = caption;
  image->tag = place;
  image->squareColour = SquareColor_;
  const auto atPlace = [&](const auto& other) { return other->tag == place; };
  if (std::any_of(colImages_.begin(), colImages_.end(), atPlace)) {
    for (const auto& other : colImages_) {
      if (other->tag >= place) other->tag = addInt16(other->tag, 1);
    }
  }
  colImages_.Add(image);
  layOut();
  return Count();
}

void Framelist::RemoveImage(std::int16_t position) {
  const std::shared_ptr<Image> removed = at(position);
  for (const auto& other : colImages_) {
    if (other->tag > removed->tag) --other->tag;
  }
  colImages_.Remove(static_cast<std::size_t>(position));
  layOut();
}

void Framelist::RemoveSelected() {
  if (iSelectedStart_ == -1) return;
  const std::int16_t a = at(iSelectedStart_)->tag;
  const std::int16_t b = at(iSelectedEnd_)->tag;
  iSelectedStart_ = -1;
  iSelectedEnd_ = -1;
  std::vector<std::shared_ptr<Image>> selected;
  for (const auto& image : colImages_) {
    if (between(image->tag, a, b)) selected.push_back(image);
  }
  for (const auto& image : selected) {
    RemoveImage(toInt16(static_cast<double>(colImages_.find(image))));
  }
}

void Framelist::hideSquares() {
  for (const auto& image : colImages_) image->squareVisible = false;
}

void Framelist::showStretch(std::int16_t a, std::int16_t b) {
  const std::int16_t tagA = at(a)->tag;
  const std::int16_t tagB = at(b)->tag;
  for (const auto& image : colImages_) {
    if (between(image->tag, tagA, tagB)) image->squareVisible = true;
  }
}

void Framelist::colour() {
  if (iSelectedStart_ == -1) return;
  setSquareColor(SquareColor_);
  at(iSelectedStart_)->squareColour = StartSquareColor_;
}

}  // namespace velra
