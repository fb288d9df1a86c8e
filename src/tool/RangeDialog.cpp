// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/RangeDialog.h"

#include <algorithm>
#include <cmath>

#include "base/Arithmetic.h"
#include "base/Text.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

constexpr std::size_t kFieldsOfATime = 4;
constexpr double kHighestOfSixty = 59;  // hours too

bool isFrames(RangeDialog::Field field) {
  return field == RangeDialog::ff1 || field == RangeDialog::ff2;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

double RangeDialog::highest(Field field) const {
  return isFrames(field) ? std::floor(dFrameRate_) : kHighestOfSixty;
}

bool RangeDialog::enabled(Field field) const {
  return !isFrames(field) || dFrameRate_ != 0;
}

bool RangeDialog::bValidField(const std::string& text, double lowest, double highest) const {
  if (text.empty() || text.size() >= 3) return false;
  if (!std::all_of(text.begin(), text.end(), isDigit)) return false;
  const double value = std::stod(text);
  return value <= highest && value >= lowest;
}

const std::string& RangeDialog::Change(Field field, const std::string& text) {
  Box& box = boxes_[field];
  if (bValidField(text, 0, highest(field))) {
    box.value = std::stod(text);
    box.text = text;
  } else {
    box.text = numberText(box.value);
  }
  return box.text;
}

const std::string& RangeDialog::KeyDown(Field field, int keyCode, int shift) {
  const Box& box = boxes_[field];
  if (shift != 0 || (keyCode != kKeyUp && keyCode != kKeyDown)) return box.text;
  const double step = keyCode == kKeyUp ? 1 : -1;
  return Change(field, numberText(box.value + step));
}

void RangeDialog::SetTime(double dStart, double dend, double dFrameRate) {
  dFrameRate_ = dFrameRate;
  fill(hh1, dStart);
  fill(hh2, dend);
}

void RangeDialog::fill(Field first, double seconds) {
  const TimeCode parts = SplitTimeCode(seconds, dFrameRate_);
  for (std::size_t i = 0; i < kFieldsOfATime; ++i) {
    const auto field = static_cast<Field>(first + i);
    boxes_[field].value = parts[i];
    Change(field, numberText(parts[i]));
  }
}

double RangeDialog::timeFrom(Field first) const {
  TimeCode parts;
  for (std::size_t i = 0; i < kFieldsOfATime; ++i) parts[i] = toInt16(boxes_[first + i].value);
  return JoinTimeCode(parts, dFrameRate_);
}

}  // namespace velra
