// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <limits>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace velra {

struct PictureFrame;

/// What counts as a shot.
struct ShotSearch {
  static constexpr double kUsualThreshold = 7;
  static constexpr double kUsualShortest = 0.5;

  double threshold = kUsualThreshold;  // by how many hundredths two pictures differ at a cut
  double shortest = kUsualShortest;    // seconds; what would be shorter belongs to its neighbour
  double from = 0;                     // seconds: a part of the movie
  double to = std::numeric_limits<double>::infinity();
};

/// What lies between two cuts, in seconds.
struct FoundShot {
  int number = 0;  // among all that were found, from 1
  double start = 0;
  double end = 0;
  std::shared_ptr<const PictureFrame> picture;  // its first one, small; never null
};

/// All shots of a movie one behind the other, or one sentence that tells why there are none.
struct FoundShots {
  std::vector<FoundShot> shots;
  std::string reason;
};

/// Finds the hard cuts of a movie; a flash of light is none. `tell` is told the share that has been
/// looked at, in the calling thread. `stop` ends the search soon, with what was found so far.
FoundShots findShots(const std::string& movie, const ShotSearch& search,
                     const std::stop_token& stop, const std::function<void(double)>& tell);

}  // namespace velra
