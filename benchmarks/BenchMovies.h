// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra::bench {

/// Movies of 1280 x 720 but for one, 25 pictures a second, 40 seconds, with sound.
struct BenchMovies {
  std::string groups15;   // MPEG-1, a key picture every 15
  std::string keys250;    // MPEG-4 in AVI, a key picture every 250
  std::string h264;       // MP4, B pictures, a key picture every 250
  std::string noise;      // 20 MB of noise that calls itself a movie
  std::string mpeg2;      // a key picture every 15
  std::string mpeg4;      // the same
  std::string h264Large;  // as the other, 1920 x 1080
  bool made = false;
};

inline constexpr double kBenchSeconds = 40;
inline constexpr double kBenchFrame = 0.04;

BenchMovies makeBenchMovies(const std::string& folder);

/// One of some hours, small and repeating itself, 25 pictures a second with sound. Returns its
/// path, or "" when it could not be made.
std::string makeLongMovie(const std::string& folder, int seconds);

}  // namespace velra::bench
