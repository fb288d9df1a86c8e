// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace velra {

/// Hours, minutes, seconds and frames.
using TimeCode = std::array<std::int16_t, 4>;

/// A time less than this many seconds before a frame's start counts as that frame. A bound that
/// comes out of a file is a whole millisecond, up to half of one early, and a container's times may
/// be 5/6 of one late. No usual start differs from a whole millisecond by just this much.
inline constexpr double kNearFrame = 0.001404;

/// A time in seconds as a file keeps it.
double inWholeMilliseconds(double seconds);

/// The time code of a time in seconds at a frame rate (frames per second; 0 when unknown, and then
/// the frame field is 0). Frames truncate, but the time is taken in whole milliseconds, so that it
/// has the same label before and after it was in a file, and one less than `kNearFrame` before a
/// frame's start, or half a millisecond behind it, counts as that start. kOverflow from ten hours
/// on.
TimeCode SplitTimeCode(double seconds, double rate);

/// The time in seconds; the frame field is ignored when the rate is 0.
double JoinTimeCode(const TimeCode& parts, double rate);

/// The four fields, each with at least two digits, joined by ":".
std::string timeCodeText(const TimeCode& parts);

}  // namespace velra
