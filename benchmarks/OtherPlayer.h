// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// What mpv takes in a movie, in the order in which it did so.
struct OtherPlayer {
  Times seeks;
  Times stepsBack;
};

/// Has mpv go to the times of a movie, and then step back; it decodes in software and paints
/// nothing. Nothing when it is not installed, or does not reach the pictures that were sought.
std::optional<OtherPlayer> measureMpv(const std::string& movie, const std::vector<double>& times,
                                      const std::string& folder);

/// Seconds of play after which it is measured: the seek before it and the first pictures are over.
inline constexpr double kPlayStart = 0.5;

/// The share of one core that mpv takes to play so many seconds of a movie, `kPlayStart` behind a
/// time, without its start; it decodes in software, and makes the pictures as a screen takes them.
/// Nothing when it is not installed.
std::optional<double> mpvPlayWork(const std::string& movie, double from, double seconds);

}  // namespace velra::bench
