// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <limits>

namespace velra {

/// Tells when pictures are shown that come in the order in which they are shown: 0 is the first.
/// A picture's own stamp counts. One without follows the picture before it, and so does one whose
/// stamp does not rise. Stamps that leap, as where recordings were joined, go on without a gap.
class PictureClock {
 public:
  static constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

  /// Fields for which a picture is shown, unless some are repeated.
  static constexpr int kFields = 2;

  /// `frameTime` is that of a picture of two fields. A stamp more than `leap` seconds behind what
  /// was expected is a leap, and one well before it too.
  explicit PictureClock(double frameTime = 0, double leap = std::numeric_limits<double>::infinity())
      : frameTime_(frameTime), leap_(leap) {}

  /// The time in seconds of the next picture. `stamp` is its time in the container, in seconds, or
  /// `kUnknown`.
  double take(double stamp, int fields);

  /// The next picture is expected at a time, where stamps exceed times by an offset.
  void restart(double time, double offset);

  /// What stamps exceed times by at present; `kUnknown` before the first stamp.
  double offset() const { return offset_; }

 private:
  bool leaps(double ahead) const;

  double frameTime_;
  double leap_;
  double offset_ = kUnknown;
  double last_ = -std::numeric_limits<double>::infinity();
  double expected_ = 0;
};

}  // namespace velra
