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

void AdvancedSlider::changed(std::string_view property) const {
  if (events.PropertyChanged) events.PropertyChanged(property);
}

void AdvancedSlider::repaint() const {
  if (events.Repaint) events.Repaint();
}

void AdvancedSlider::setRangeColor(std::int32_t colour) {
  RangeColor_ = colour;
  BlinkLine_.colour = colour;
  marks_.colourAll(colour);
  changed("RangeColor");
  repaint();
}

void AdvancedSlider::setStartRangeColor(std::int32_t colour) {
  StartRangeColor_ = colour;
  changed("StartRangeColor");
}

void AdvancedSlider::setDMin(double seconds) {
  dMin_ = seconds;
  changed("dMin");
}

void AdvancedSlider::setDMax(double seconds) {
  dMax_ = seconds;
  changed("dMax");
}

void AdvancedSlider::setDPosition(double seconds) {
  dPosition_ = seconds;
  if (dPosition_ > dMax_) dPosition_ = dMax_;
  if (dPosition_ < dMin_) dPosition_ = dMin_;
  Slider1_.value =
      toInt32(Slider::kMin + (Slider::kMax - Slider::kMin) * scale().share(dPosition_));
  changed("dPosition");
  if (events.ThumbMoved) events.ThumbMoved();
}

void AdvancedSlider::setDLargeChange(double seconds) {
  const double span = dMax_ - dMin_;
  dLargeChange_ = span < seconds ? span : seconds;
  if (span == 0) raise(kDivisionByZero);
  Slider1_.largeChange = toInt32(dLargeChange_ / span * (Slider::kMax - Slider::kMin));
  changed("dLargeChange");
}

void AdvancedSlider::setEnabled(bool enabled) {
  Slider1_.enabled = enabled;
  changed("Enabled");
  repaint();
}

void AdvancedSlider::setIRangeSelectedStart(std::int16_t index) {
  selection_ = {index, index};
  colour();
  redraw();
  changed("iRangeSelectedStart");
}

void AdvancedSlider::setIRangeSelectedEnd(std::int16_t index) {
  if (!selection_.any()) return;
  selection_.end = index;
  redraw();
  changed("iRangeSelectedEnd");
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
  constexpr double kSteps = Slider::kMax - Slider::kMin;
  Slider1_.value = value < Slider::kMin   ? Slider::kMin
                   : value > Slider::kMax ? Slider::kMax
                                          : value;
  dPosition_ = (Slider1_.value - Slider::kMin) / kSteps * (dMax_ - dMin_) + dMin_;
  changed("dPosition");
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
  repaint();
  return Count();
}

void AdvancedSlider::takeBackLastRange() {
  marks_.removeLast();
  repaint();
}

void AdvancedSlider::UpdateRange(std::int16_t index, double dBegin, double dend) {
  if (index < 1 || index > Count()) return;
  marks_.setBounds(index, {dBegin, dend});
  Refresh();
}

void AdvancedSlider::RemoveSelectedRanges() {
  const std::vector<std::int16_t> selected = colSelectedIndexes();
  marks_.remove(selected);
  if (!selected.empty()) repaint();
}

void AdvancedSlider::colour() {
  if (!selection_.any()) return;
  setRangeColor(RangeColor_);
  marks_.colour(selection_.start, StartRangeColor_);
}

void AdvancedSlider::redraw() {
  marks_.placeAll(scale());
  placeBlinkLine();
  marks_.highlight(selection_);
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
  if (extend && !selection_.any()) return;
  selection_.end = index;
  if (!extend) selection_.start = index;
  marks_.highlight(selection_);
  if (!extend) colour();
  repaint();
  if (events.Click) events.Click(selection_.start);
}

void AdvancedSlider::DoubleClick(std::int16_t index) {
  MouseDown(index, 0);
  if (events.DblClick) events.DblClick(index);
}

void AdvancedSlider::placeBlinkLine() {
  BlinkLine_.x = scale().x(dBlinkTime_);
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

}  // namespace velra
