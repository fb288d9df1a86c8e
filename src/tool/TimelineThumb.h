// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "tool/RangeMarks.h"

namespace velra {

/// The slider below the marks of a timeline; its whole numbers are the thumb's own. Shares are of
/// the span of time, 0 at its start and 1 at its end; places are twips.
struct TimelineThumb {
  static constexpr std::int32_t kMin = 0;
  static constexpr std::int32_t kMax = 5000;
  static constexpr double kThumbMargin = TimelineScale::kMargin;  // of its centre at both ends

  double left = 0;
  double width = 0;
  std::int32_t value = 0;
  std::int32_t largeChange = 0;
  bool enabled = false;

  void setShare(double share);
  void setLargeChange(double share);
  /// Keeps within the thumb's numbers; gives the share.
  double moveTo(std::int32_t number);
};

}  // namespace velra
