#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace velra {

/// Hours, minutes, seconds and frames.
using TimeCode = std::array<std::int16_t, 4>;

/// The time code of a time in seconds at a frame rate (frames per second; 0 when unknown, and then
/// the frame field is 0). Frames truncate, but a time less than a millisecond before a frame's
/// start, or half of one behind it, counts as that start: bounds in files are whole milliseconds,
/// and sums of frame lengths fall short by the last bits of a double. kOverflow from ten hours on.
TimeCode SplitTimeCode(double seconds, double rate);

/// The time in seconds; the frame field is ignored when the rate is 0.
double JoinTimeCode(const TimeCode& parts, double rate);

/// The four fields, each with at least two digits, joined by ":".
std::string timeCodeText(const TimeCode& parts);

}  // namespace velra
