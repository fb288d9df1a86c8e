// SPDX-License-Identifier: GPL-3.0-or-later

// Layout, scrolling and the mouse of the strip.
#include "tool/Framelist.h"

#include <algorithm>

#include "base/Arithmetic.h"

namespace velra {

namespace {

constexpr double kPanelMargin = 100;

}  // namespace

void Framelist::layOut() {
  for (const auto& image : colImages_) place(*image);
  if (iSelectedStart_ != -1) {
    hideSquares();
    showStretch(iSelectedStart_, iSelectedEnd_);
    colour();
  }
  sizeScrollBar();
  repaint();
}

double Framelist::panelWidth() const {
  return static_cast<double>(colImages_.Count()) * iCellX_ + kPanelMargin;
}

void Framelist::sizeScrollBar() {
  HScroll1_.largeChange = iCellX_;
  HScroll1_.smallChange = toInt16(ImageX_ / 4.0);
  HScroll1_.max = toInt16(panelWidth() - width_);
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
  hideSquares();
  showStretch(iSelectedStart_, iSelectedEnd_);
  colour();
  repaint();
  if (events.Click) events.Click(iSelectedStart_, at(iSelectedStart_)->tag);
}

void Framelist::DoubleClick(std::int16_t position) {
  const std::int16_t tag = at(position)->tag;
  MouseDown(position, 0);
  if (events.DblClick) events.DblClick(position, tag);
}

std::int16_t Framelist::iImageAt(double x, double y) const {
  if (y < kMargin || y >= kMargin + ImageY_) return 0;
  for (std::int16_t i = Count(); i >= 1; --i) {
    const double left = at(i)->left + kMargin;
    if (x >= left && x < left + ImageX_) return i;
  }
  return 0;
}

std::int16_t Framelist::iNeighbour(bool forward) const {
  if (iSelectedEnd_ < 1 || iSelectedEnd_ > Count()) return iImageAtEnd(!forward);
  const int step = forward ? 1 : -1;
  const std::int16_t tag = at(iSelectedEnd_)->tag;
  std::int16_t best = 0;
  for (std::int16_t i = 1; i <= Count(); ++i) {
    if (step * (at(i)->tag - tag) <= 0) continue;
    if (best == 0 || step * (at(best)->tag - at(i)->tag) > 0) best = i;
  }
  return best;
}

std::int16_t Framelist::iImageAtEnd(bool last) const {
  std::int16_t best = 0;
  for (std::int16_t i = 1; i <= Count(); ++i) {
    if (best == 0 || (at(i)->tag > at(best)->tag) == last) best = i;
  }
  return best;
}

}  // namespace velra
