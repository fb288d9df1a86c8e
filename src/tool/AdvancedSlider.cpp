// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/AdvancedSlider.h"

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "tool/PropertyBag.h"

namespace velra {

namespace {

constexpr std::int32_t kWhite = 16777215;
constexpr double kDefaultLargeChange = 0.05;

// Both ends of the selection are stored under one key that nobody reads: a stored selection does
// not come back.
constexpr const char* kSelectionWriteKey = "dMiRangeSelectedax";

}  // namespace

void AdvancedSlider::setRangeColor(std::int32_t colour) {
  RangeColor_ = colour;
  BlinkLine_.colour = colour;
  marks_.colourAll(colour);
  events.tellPropertyChanged("RangeColor");
  events.tellRepaint();
}

void AdvancedSlider::setStartRangeColor(std::int32_t colour) {
  StartRangeColor_ = colour;
  events.tellPropertyChanged("StartRangeColor");
}

void AdvancedSlider::setDMin(double seconds) {
  dMin_ = seconds;
  events.tellPropertyChanged("dMin");
}

void AdvancedSlider::setDMax(double seconds) {
  dMax_ = seconds;
  events.tellPropertyChanged("dMax");
}

void AdvancedSlider::setDPosition(double seconds) {
  dPosition_ = seconds;
  if (dPosition_ > dMax_) dPosition_ = dMax_;
  if (dPosition_ < dMin_) dPosition_ = dMin_;
  Slider1_.setShare(scale().share(dPosition_));
  events.tellPropertyChanged("dPosition");
  if (events.ThumbMoved) events.ThumbMoved();
}

void AdvancedSlider::setDLargeChange(double seconds) {
  const double span = dMax_ - dMin_;
  dLargeChange_ = span < seconds ? span : seconds;
  if (span == 0) raise(kDivisionByZero);
  Slider1_.setLargeChange(dLargeChange_ / span);
  events.tellPropertyChanged("dLargeChange");
}

void AdvancedSlider::setEnabled(bool enabled) {
  Slider1_.enabled = enabled;
  events.tellPropertyChanged("Enabled");
  events.tellRepaint();
}

void AdvancedSlider::setIRangeSelectedStart(std::int16_t index) {
  selection_ = {index, index};
  colour();
  Refresh();
  events.tellPropertyChanged("iRangeSelectedStart");
}

void AdvancedSlider::setIRangeSelectedEnd(std::int16_t index) {
  if (!selection_.any()) return;
  selection_.end = index;
  Refresh();
  events.tellPropertyChanged("iRangeSelectedEnd");
}

void AdvancedSlider::ReadProperties(const PropertyBag& bag) {
  setRangeColor(bag.read("RangeColor", kWhite));
  setStartRangeColor(bag.read("StartRangeColor", kWhite));
  setDMin(bag.read("dMin", 0.0));
  setDMax(bag.read("dMax", 1.0));
  setIRangeSelectedStart(toInt16(bag.read("iRangeSelectedStart", std::int32_t{-1})));
  setIRangeSelectedEnd(toInt16(bag.read("iRangeSelectedEnd", std::int32_t{-1})));
  setDPosition(bag.read("dPosition", dMin_));
  setDLargeChange(bag.read("dLargeChange", kDefaultLargeChange));
  setEnabled(bag.read("Enabled", true));
}

void AdvancedSlider::WriteProperties(PropertyBag& bag) const {
  constexpr std::int32_t kNone = -1;
  bag.WriteProperty("RangeColor", RangeColor_, kWhite);
  bag.WriteProperty("StartRangeColor", StartRangeColor_, kWhite);
  bag.WriteProperty("dMin", dMin_, 0.0);
  bag.WriteProperty("dMax", dMax_, 1.0);
  bag.WriteProperty(kSelectionWriteKey, std::int32_t{selection_.start}, kNone);
  bag.WriteProperty(kSelectionWriteKey, std::int32_t{selection_.end}, kNone);
  bag.WriteProperty("dPosition", dPosition_, dMin_);
  bag.WriteProperty("dLargeChange", dLargeChange_, kDefaultLargeChange);
  bag.WriteProperty("Enabled", Enabled(), true);
}

void AdvancedSlider::UserMovesThumb(std::int32_t value) {
  if (!Enabled()) return;
  dPosition_ = Slider1_.moveTo(value) * (dMax_ - dMin_) + dMin_;
  events.tellPropertyChanged("dPosition");
  if (events.ThumbMoved) events.ThumbMoved();
  if (events.Scroll) events.Scroll();
}

void AdvancedSlider::UserSteps(bool forward) {
  if (Enabled() && events.Step) events.Step(forward);
}

std::int16_t AdvancedSlider::iAddRange(double dBegin, double dend, const std::string& caption) {
  if (dBegin > dend) return 0;
  if (dBegin < dMin_) dBegin = dend;
  if (dend > dMax_) dend = dMax_;
  marks_.add({dBegin, dend}, caption, RangeColor_, scale());
  events.tellRepaint();
  return Count();
}

void AdvancedSlider::takeBackLastRange() {
  marks_.removeLast();
  events.tellRepaint();
}

void AdvancedSlider::UpdateRange(std::int16_t index, double dBegin, double dend) {
  if (index < 1 || index > Count()) return;
  marks_.setBounds(index, {dBegin, dend});
  Refresh();
}

void AdvancedSlider::RemoveSelectedRanges() {
  const std::vector<std::int16_t> selected = colSelectedIndexes();
  marks_.remove(selected);
  if (!selected.empty()) events.tellRepaint();
}

void AdvancedSlider::colour() {
  if (!selection_.any()) return;
  setRangeColor(RangeColor_);
  marks_.colour(selection_.start, StartRangeColor_);
}

void AdvancedSlider::Refresh() {
  marks_.placeAll(scale());
  BlinkLine_.place(scale());
  marks_.highlight(selection_);
  colour();
  events.tellRepaint();
}

void AdvancedSlider::Resize(double widthTwips) {
  Slider1_.left = 0;
  Slider1_.width = widthTwips;
  Refresh();
}

void AdvancedSlider::MouseDown(std::int16_t index, int shift) {
  const bool extend = shift == kShiftArgument;
  if (extend && !selection_.any()) return;
  selection_.end = index;
  if (!extend) selection_.start = index;
  marks_.highlight(selection_);
  if (!extend) colour();
  events.tellRepaint();
  if (events.Click) events.Click(selection_.start);
}

void AdvancedSlider::DoubleClick(std::int16_t index) {
  MouseDown(index, 0);
  if (events.DblClick) events.DblClick(index);
}

void AdvancedSlider::PutBlinkLine(double seconds) {
  BlinkLine_.visible = true;
  if (events.RunBlinkTimer) events.RunBlinkTimer(true);
  BlinkLine_.time = seconds;
  BlinkLine_.place(scale());
  events.tellRepaint();
}

void AdvancedSlider::RemoveBlinkLine() {
  BlinkLine_.visible = false;
  if (events.RunBlinkTimer) events.RunBlinkTimer(false);
  events.tellRepaint();
}

void AdvancedSlider::BlinkTick() {
  BlinkLine_.visible = !BlinkLine_.visible;
  events.tellRepaint();
}

}  // namespace velra
