// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

namespace velra {

/// The layout unit of the rules, 1440 to the inch: a logical pixel has 15.
constexpr int kTwipsPerPixel = 15;

inline int pixelsFromTwips(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

constexpr int twipsFromPixels(int pixels) {
  return pixels * kTwipsPerPixel;
}

}  // namespace velra
