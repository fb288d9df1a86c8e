// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "tool/RangeMarks.h"

namespace velra {

/// The line that blinks over a timeline where the first of two points was taken. Its time is
/// seconds, its place twips, its colour 0x00bbggrr.
struct BlinkLine {
  bool visible = false;
  double x = 0;
  std::int32_t colour = 0;
  double time = 0;

  void place(const TimelineScale& scale) { x = scale.x(time); }
};

}  // namespace velra
