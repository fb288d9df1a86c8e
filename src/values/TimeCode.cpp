// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/TimeCode.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/Arithmetic.h"

namespace velra {

namespace {

// As far as a whole millisecond may lie from the time that it stands for, and the last bits.
constexpr double kRounding = 0.000501;

// True when a time stands where a label of its second begins, as times made from labels do.
bool beginsLabel(double seconds, double rate) {
  const double frames = (seconds - std::floor(seconds)) * rate;
  return std::abs(frames - std::round(frames)) < 1e-6;
}

// The start of the label that a stored time was made from, or the time itself.
double labelStart(double stored, double rate) {
  const double second = std::floor(stored);
  const double label = second + std::round((stored - second) * rate) / rate;
  return std::abs(label - stored) < kRounding ? label : stored;
}

// The start of the frame that a time means. Labels count from the full second and frames from the
// start of the movie: at rates such as 30000/1001 a label may change within the half millisecond by
// which a stored start can be too late.
double frameStart(double seconds, double rate) {
  const double stored = inWholeMilliseconds(seconds);
  const double quarter = 0.25 / rate;
  const double start = std::floor((stored + std::min(kNearFrame, quarter)) * rate) / rate;
  if (stored - start < std::min(kRounding, quarter)) {
    return start <= seconds && beginsLabel(seconds, rate) ? seconds : start;
  }
  return labelStart(stored, rate);
}

double atFrame(double seconds, double rate) {
  if (rate <= 0) return inWholeMilliseconds(seconds);
  const double time = frameStart(seconds, rate);
  // A frame that starts on a full second must not fall short of it by the last bits.
  const double second = std::round(time);
  return std::abs(time - second) < 1e-6 ? second : time;
}

std::int16_t frameField(double rest, double rate) {
  if (rate <= 0) return 0;
  // The rest of a time that stands on a frame is k / rate but for the last bits.
  const double frames = rest * rate;
  const double nearest = std::round(frames);
  return toInt16(std::abs(frames - nearest) < 1e-6 ? nearest : std::floor(frames));
}

}  // namespace

double inWholeMilliseconds(double seconds) {
  return std::nearbyint(seconds * 1000) / 1000;
}

TimeCode SplitTimeCode(double seconds, double rate) {
  const double time = atFrame(seconds, rate);
  const std::int16_t hours = toInt16(std::floor(time / 3600));
  double rest = time - multiplyInt16(hours, 3600);
  const std::int16_t minutes = toInt16(std::floor(rest / 60));
  rest -= multiplyInt16(minutes, 60);
  const std::int16_t whole = toInt16(std::floor(rest));
  rest -= whole;
  return {hours, minutes, whole, frameField(rest, rate)};
}

double JoinTimeCode(const TimeCode& parts, double rate) {
  const double seconds = parts[0] * 3600.0 + parts[1] * 60.0 + parts[2];
  return rate == 0 ? seconds : seconds + parts[3] / rate;
}

std::string timeCodeText(const TimeCode& parts) {
  std::string text;
  for (const std::int16_t part : parts) {
    char field[16];
    // Two digits and the sign before them.
    std::snprintf(field, sizeof field, "%s%02d", part < 0 ? "-" : "", std::abs(int{part}));
    if (!text.empty()) text += ':';
    text += field;
  }
  return text;
}

}  // namespace velra
