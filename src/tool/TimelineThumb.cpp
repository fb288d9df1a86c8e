// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/TimelineThumb.h"

#include <algorithm>

#include "base/Arithmetic.h"

namespace velra {

namespace {

constexpr double kThumbSteps = TimelineThumb::kMax - TimelineThumb::kMin;

}  // namespace

void TimelineThumb::setShare(double share) {
  value = toInt32(kMin + kThumbSteps * share);
}

void TimelineThumb::setLargeChange(double share) {
  largeChange = toInt32(share * kThumbSteps);
}

double TimelineThumb::moveTo(std::int32_t number) {
  value = std::clamp(number, kMin, kMax);
  return (value - kMin) / kThumbSteps;
}

}  // namespace velra
