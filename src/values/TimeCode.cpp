#include "values/TimeCode.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/Arithmetic.h"

namespace velra {

namespace {

// The tolerance around a frame's start, in seconds; never more than a quarter of a frame.
double tolerance(double most, double rate) {
  return std::min(most, 0.25 / rate);
}

// True when a time stands where a label of its second begins, as times made from labels do.
bool beginsLabel(double seconds, double rate) {
  const double frames = (seconds - std::floor(seconds)) * rate;
  return std::abs(frames - std::round(frames)) < 1e-6;
}

// The start of the frame that a time means. Labels count from the full second and frames from the
// start of the movie: at rates such as 30000/1001 a label may change within the half millisecond by
// which a stored start can be too late.
double frameStart(double seconds, double rate) {
  const double next = std::ceil(seconds * rate) / rate;
  if (next > seconds && next - seconds < tolerance(0.001, rate)) return next;
  const double start = std::floor(seconds * rate) / rate;
  const bool rounded = seconds - start < tolerance(0.000501, rate) && !beginsLabel(seconds, rate);
  return rounded ? start : seconds;
}

double atFrame(double seconds, double rate) {
  if (rate <= 0) return seconds;
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
