// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PictureClock.h"

namespace velra {

namespace {

// Stamps that fall by more seconds than this begin anew; where leaps count at all.
constexpr double kFurthestBack = 0.5;

}  // namespace

bool PictureClock::leaps(double ahead) const {
  return std::isfinite(leap_) && (ahead > leap_ || ahead < -kFurthestBack);
}

void PictureClock::restart(double time, double offset) {
  last_ = -std::numeric_limits<double>::infinity();
  expected_ = time;
  offset_ = offset;
}

double PictureClock::take(double stamp, int fields) {
  double time = expected_;
  if (!std::isnan(stamp)) {
    if (std::isnan(offset_)) offset_ = stamp - expected_;
    const double stamped = stamp - offset_;
    if (leaps(stamped - expected_)) {
      offset_ = stamp - expected_;
    } else if (stamped > last_) {
      time = stamped;
    }
  }
  last_ = time;
  expected_ = time + fields * frameTime_ / kFields;
  return time;
}

}  // namespace velra
