// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/FrameCount.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

constexpr double pulledRate(double whole) {
  return whole * 1000 / 1001;
}

// Rates are written with two or three decimals: what is meant is the nearest 1000/1001 of a whole
// rate.
double meantRate(double rate) {
  constexpr double kSlack = 0.006;
  const double whole = std::max(1.0, std::round(rate));
  if (std::abs(rate - whole) < 1e-6) return whole;
  return std::abs(rate - pulledRate(whole)) < kSlack ? pulledRate(whole) : rate;
}

}  // namespace

FrameCount::FrameCount(double rate)
    : rate_(meantRate(rate)), perSecond_(std::max<std::int64_t>(1, std::llround(rate_))) {
  const bool known = perSecond_ == 30 || perSecond_ == 60;
  if (known && rate_ == pulledRate(static_cast<double>(perSecond_))) dropped_ = perSecond_ / 15;
}

std::int64_t FrameCount::at(double seconds) const {
  const double stored = static_cast<double>(milliseconds(seconds)) / 1000;
  return static_cast<std::int64_t>(
      std::floor((stored + std::min(kNearFrame, 0.25 / rate_)) * rate_));
}

std::int64_t FrameCount::firstOfHour(int hour) const {
  return hour * 6 * perTenMinutes();
}

std::optional<std::int64_t> FrameCount::labelled(std::string_view label, bool drops) const {
  constexpr double kMostOfField = 999;
  std::vector<std::int64_t> fields;
  for (const std::string& field : split(replaceAll(std::string(label), ";", ":"), ':')) {
    const auto value = toNumber(field);
    if (!value || *value < 0 || *value > kMostOfField) return std::nullopt;
    fields.push_back(static_cast<std::int64_t>(*value));
  }
  if (fields.size() != 4 || fields[3] >= perSecond_) return std::nullopt;
  const std::int64_t minutes = fields[0] * 60 + fields[1];
  const std::int64_t number = (minutes * 60 + fields[2]) * perSecond_ + fields[3];
  return drops ? number - dropped_ * (minutes - minutes / 10) : number;
}

std::string FrameCount::text(std::int64_t frame) const {
  const std::int64_t tens = frame / perTenMinutes();
  const std::int64_t rest = frame % perTenMinutes();
  // The first minute of ten is whole, the others lack what is dropped.
  const std::int64_t whole = 60 * perSecond_;
  const std::int64_t minutes = rest < whole ? 0 : 1 + (rest - whole) / (whole - dropped_);
  const std::int64_t label = frame + dropped_ * (9 * tens + minutes);
  const std::int64_t second = label / perSecond_;
  char text[64];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d%c%02d", static_cast<int>(second / 3600 % 24),
                static_cast<int>(second / 60 % 60), static_cast<int>(second % 60),
                dropsFrames() ? ';' : ':', static_cast<int>(label % perSecond_));
  return text;
}

}  // namespace velra
