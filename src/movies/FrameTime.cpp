// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/FrameTime.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <vector>

#include "movies/PictureReader.h"

namespace velra {

namespace {

// An average over a movie that lacks pictures differs from the usual distance by more.
constexpr double kSameShare = 0.005;

// Rates that films and television have, and those a thousandth slower.
constexpr double kRates[] = {10, 12, 12.5, 15, 24, 25, 30, 48, 50, 60, 100, 120};
constexpr double kSlower = 1.001;

constexpr std::size_t kMeasuredPictures = 24;

}  // namespace

double chooseFrameTime(double stated, double usual, double tick, std::int64_t pictures) {
  const bool same = stated > 0 && std::abs(usual - stated) < stated * kSameShare;
  const double frame = usual > 0 && !same ? usual : stated;
  // What adds up to no more than the rounding to ticks by the end of the movie is that rounding.
  const double most = 1.5 * tick / static_cast<double>(pictures > 0 ? pictures : 1);
  for (const double rate : kRates) {
    for (const double standard : {1 / rate, kSlower / rate}) {
      if (pictures > 1 && std::abs(frame - standard) < most) return standard;
    }
  }
  return frame;
}

std::optional<double> medianDistance(PictureReader& reader) {
  std::vector<double> distances;
  bool ended = !reader.rewind();
  while (!ended && distances.size() < kMeasuredPictures) {
    const PictureReader::Found picture = reader.step(ended);
    if (picture && !ended) distances.push_back(picture->end - picture->time);
  }
  if (distances.empty()) return std::nullopt;
  const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
  std::nth_element(distances.begin(), middle, distances.end());
  return *middle;
}

}  // namespace velra
