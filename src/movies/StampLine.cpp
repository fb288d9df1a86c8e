// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/StampLine.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>

namespace velra {

void StampLine::add(double from, double offset) {
  parts_.push_back({from, offset});
}

double StampLine::offsetAt(double time) const {
  if (parts_.empty()) return std::numeric_limits<double>::quiet_NaN();
  const auto behind = std::upper_bound(parts_.begin() + 1, parts_.end(), time,
                                       [](double t, const Part& part) { return t < part.from; });
  return std::prev(behind)->offset;
}

double StampLine::timeOf(double stamp) const {
  for (std::size_t i = parts_.size(); i-- > 1;) {
    const double gapMiddle = parts_[i].from + (parts_[i - 1].offset + parts_[i].offset) / 2;
    if (stamp >= gapMiddle) return stamp - parts_[i].offset;
  }
  return stamp - offsetAt(0);
}

bool StampLine::rises() const {
  return std::is_sorted(parts_.begin(), parts_.end(),
                        [](const Part& a, const Part& b) { return a.offset < b.offset; });
}

StampLine StampLine::startingAt(double seconds) const {
  StampLine line;
  for (const Part& part : parts_) line.add(part.from - seconds, part.offset + seconds);
  return line;
}

}  // namespace velra
