// SPDX-License-Identifier: GPL-3.0-or-later

// The ranges of the timeline: adding, placing, selecting, removing.
#include "tool/AdvancedSlider.h"

#include <algorithm>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"

namespace velra {

void AdvancedSlider::repaint() const {
  if (events.Repaint) events.Repaint();
}

double AdvancedSlider::share(double seconds) const {
  if (dMax_ == dMin_) raise(kDivisionByZero);
  return (seconds - dMin_) / (dMax_ - dMin_);
}

double AdvancedSlider::x(double seconds) const {
  const std::int16_t left = toInt16(Slider1_.left + Slider::kThumbMargin);
  const std::int16_t width = toInt16(Slider1_.width - 2 * Slider::kThumbMargin);
  return left + share(seconds) * width;
}

void AdvancedSlider::place(std::size_t index) {
  const Range& range = *colRanges_.Item(index);
  Mark& mark = marks_[index - 1];
  mark.left = x(range.dBegin);
  mark.width = (range.dend - range.dBegin) / (dMax_ - dMin_) *
               toInt16(Slider1_.width - 2 * Slider::kThumbMargin);
}

std::int16_t AdvancedSlider::Count() const {
  return toInt16(static_cast<double>(colRanges_.Count()));
}

std::int16_t AdvancedSlider::iAddRange(double dBegin, double dend, const std::string& caption) {
  if (dBegin > dend) return 0;
  if (dBegin < dMin_) dBegin = dend;
  if (dend > dMax_) dend = dMax_;
  colRanges_.Add(dend, dBegin, {});
  Mark mark;
  mark.caption = caption;
  mark.colour = RangeColor_;
  marks_.push_back(mark);
  place(marks_.size());
  repaint();
  return Count();
}

void AdvancedSlider::takeBackLastRange() {
  colRanges_.Remove(colRanges_.Count());
  marks_.pop_back();
  repaint();
}

void AdvancedSlider::UpdateRange(std::int16_t index, double dBegin, double dend) {
  if (index < 1 || index > Count()) return;
  *colRanges_.Item(static_cast<std::size_t>(index)) = {dBegin, dend};
  Refresh();
}

bool AdvancedSlider::isSelected(const Range& range) const {
  const double a = colRanges_.Item(static_cast<std::size_t>(iRangeSelectedStart_))->dBegin;
  const double b = colRanges_.Item(static_cast<std::size_t>(iRangeSelectedEnd_))->dBegin;
  return range.dBegin >= std::min(a, b) && range.dBegin <= std::max(a, b);
}

std::vector<std::int16_t> AdvancedSlider::colSelectedIndexes() const {
  std::vector<std::int16_t> selected;
  if (iRangeSelectedStart_ == -1) return selected;
  for (std::int16_t i = 1; i <= Count(); ++i) {
    if (isSelected(*colRanges_.Item(static_cast<std::size_t>(i)))) selected.push_back(i);
  }
  return selected;
}

void AdvancedSlider::RemoveSelectedRanges() {
  const std::vector<std::int16_t> selected = colSelectedIndexes();
  for (auto index = selected.rbegin(); index != selected.rend(); ++index) {
    colRanges_.Remove(static_cast<std::size_t>(*index));
    marks_.erase(marks_.begin() + (*index - 1));
  }
  if (!selected.empty()) repaint();
}

void AdvancedSlider::highlight() {
  if (iRangeSelectedStart_ == -1) return;
  for (Mark& mark : marks_) mark.borderWidth = kPlainBorder;
  for (std::size_t i = 1; i <= marks_.size(); ++i) {
    if (isSelected(*colRanges_.Item(i))) marks_[i - 1].borderWidth = kSelectedBorder;
  }
}

void AdvancedSlider::colour() {
  if (iRangeSelectedStart_ == -1) return;
  setRangeColor(RangeColor_);
  colRanges_.Item(static_cast<std::size_t>(iRangeSelectedStart_));  // a stale index ends here
  marks_[static_cast<std::size_t>(iRangeSelectedStart_) - 1].colour = StartRangeColor_;
}

void AdvancedSlider::redraw() {
  for (std::size_t i = 1; i <= marks_.size(); ++i) place(i);
  placeBlinkLine();
  highlight();
  colour();
  repaint();
}

void AdvancedSlider::Refresh() {
  redraw();
}

void AdvancedSlider::Resize(double widthTwips) {
  Slider1_.left = 0;
  Slider1_.width = widthTwips;
  Refresh();
}

void AdvancedSlider::MouseDown(std::int16_t index, int shift) {
  const bool extend = shift == kShiftArgument;
  if (extend && iRangeSelectedStart_ == -1) return;
  iRangeSelectedEnd_ = index;
  if (!extend) iRangeSelectedStart_ = index;
  highlight();
  if (!extend) colour();
  repaint();
  if (events.Click) events.Click(iRangeSelectedStart_);
}

void AdvancedSlider::DoubleClick(std::int16_t index) {
  MouseDown(index, 0);
  if (events.DblClick) events.DblClick(index);
}

void AdvancedSlider::placeBlinkLine() {
  BlinkLine_.x = x(dBlinkTime_);
}

void AdvancedSlider::PutBlinkLine(double seconds) {
  BlinkLine_.visible = true;
  if (events.RunBlinkTimer) events.RunBlinkTimer(true);
  dBlinkTime_ = seconds;
  placeBlinkLine();
  repaint();
}

void AdvancedSlider::RemoveBlinkLine() {
  BlinkLine_.visible = false;
  if (events.RunBlinkTimer) events.RunBlinkTimer(false);
  repaint();
}

void AdvancedSlider::BlinkTick() {
  BlinkLine_.visible = !BlinkLine_.visible;
  repaint();
}

std::int16_t AdvancedSlider::iRangeAt(double x, double slack) const {
  for (const double margin : {0.0, slack}) {
    for (std::size_t i = marks_.size(); i >= 1; --i) {
      const Mark& mark = marks_[i - 1];
      const double extra = mark.width < 2 * margin ? margin : 0;
      const bool inside = x >= mark.left - extra && x < mark.left + mark.width + extra;
      if (inside) return static_cast<std::int16_t>(i);
    }
  }
  return 0;
}

std::int16_t AdvancedSlider::iNeighbour(bool forward) const {
  const std::size_t count = colRanges_.Count();
  const auto current = static_cast<std::size_t>(iRangeSelectedEnd_);
  const bool selected = iRangeSelectedEnd_ >= 1 && current <= count;
  // Ranges that begin together follow one another by their indexes.
  const auto before = [&](std::size_t a, std::size_t b) {
    const double ta = colRanges_.Item(a)->dBegin;
    const double tb = colRanges_.Item(b)->dBegin;
    return forward ? (ta != tb ? ta < tb : a < b) : (ta != tb ? ta > tb : a > b);
  };
  std::size_t best = 0;
  for (std::size_t i = 1; i <= count; ++i) {
    if (selected && !before(current, i)) continue;
    if (best == 0 || before(i, best)) best = i;
  }
  return static_cast<std::int16_t>(best);
}

}  // namespace velra
