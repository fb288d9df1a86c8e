#include "values/TimeCode.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/Arithmetic.h"

namespace velra {

namespace {

// The tolerance before a frame's start, in seconds; never more than a quarter of a frame.
double tolerance(double rate) {
  return std::min(0.001, 0.25 / rate);
}

double atFrame(double seconds, double rate) {
  if (rate <= 0) return seconds;
  const double next = std::ceil(seconds * rate) / rate;
  const double time = next > seconds && next - seconds < tolerance(rate) ? next : seconds;
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
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%02d:%02d:%02d:%02d", parts[0], parts[1], parts[2],
                parts[3]);
  return buffer;
}

}  // namespace velra
