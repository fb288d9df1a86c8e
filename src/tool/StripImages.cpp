// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/StripImages.h"

#include <algorithm>
#include <vector>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"

namespace velra {

namespace {

std::size_t bitOf(std::int16_t place) {
  return static_cast<std::uint16_t>(place);
}

bool between(std::int16_t tag, std::int16_t a, std::int16_t b) {
  return tag >= std::min(a, b) && tag <= std::max(a, b);
}

}  // namespace

std::int16_t StripImages::Count() const {
  return toInt16(static_cast<double>(images_.Count()));
}

const std::shared_ptr<StripImage>& StripImages::at(std::int16_t position) const {
  if (position < 1) raise(kSubscriptOutOfRange);
  return images_.Item(static_cast<std::size_t>(position));
}

void StripImages::add(const StripImage& image) {
  if (taken_.test(bitOf(image.tag))) {
    for (const auto& other : images_) {
      if (other->tag >= image.tag) other->tag = addInt16(other->tag, 1);
    }
    noteTaken();
  }
  images_.Add(std::make_shared<StripImage>(image));
  taken_.set(bitOf(image.tag));
}

void StripImages::noteTaken() {
  taken_.reset();
  for (const auto& image : images_) taken_.set(bitOf(image->tag));
}

void StripImages::remove(std::int16_t position) {
  const std::shared_ptr<StripImage> removed = at(position);
  for (const auto& other : images_) {
    if (other->tag > removed->tag) --other->tag;
  }
  images_.Remove(static_cast<std::size_t>(position));
  noteTaken();
}

void StripImages::removeStretch(std::int16_t a, std::int16_t b) {
  const std::int16_t tagA = at(a)->tag;
  const std::int16_t tagB = at(b)->tag;
  std::vector<std::shared_ptr<StripImage>> selected;
  for (const auto& image : images_) {
    if (between(image->tag, tagA, tagB)) selected.push_back(image);
  }
  for (const auto& image : selected) {
    remove(toInt16(static_cast<double>(images_.find(image))));
  }
}

double StripImages::left(std::int16_t position) const {
  return (at(position)->tag - 1) * cellWidth_;
}

void StripImages::colourAll(std::int32_t colour) {
  for (const auto& image : images_) image->squareColour = colour;
}

void StripImages::hideSquares() {
  for (const auto& image : images_) image->squareVisible = false;
}

void StripImages::showOne(std::int16_t position) {
  hideSquares();
  at(position)->squareVisible = true;
}

void StripImages::showStretch(std::int16_t a, std::int16_t b) {
  hideSquares();
  const std::int16_t tagA = at(a)->tag;
  const std::int16_t tagB = at(b)->tag;
  for (const auto& image : images_) {
    if (between(image->tag, tagA, tagB)) image->squareVisible = true;
  }
}

std::int16_t StripImages::neighbour(std::int16_t position, bool forward) const {
  if (position < 1 || position > Count()) return atEnd(!forward);
  const int step = forward ? 1 : -1;
  const std::int16_t tag = at(position)->tag;
  std::int16_t best = 0;
  for (std::int16_t i = 1; i <= Count(); ++i) {
    if (step * (at(i)->tag - tag) <= 0) continue;
    if (best == 0 || step * (at(best)->tag - at(i)->tag) > 0) best = i;
  }
  return best;
}

std::int16_t StripImages::atEnd(bool last) const {
  std::int16_t best = 0;
  for (std::int16_t i = 1; i <= Count(); ++i) {
    if (best == 0 || (at(i)->tag > at(best)->tag) == last) best = i;
  }
  return best;
}

}  // namespace velra
