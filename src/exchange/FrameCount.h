// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velra {

/// Pictures counted from the start of a movie, and their time codes as editing rooms write them.
class FrameCount {
 public:
  /// Pictures per second, above 0. 29.97 and the like mean 30000/1001, and so on.
  explicit FrameCount(double rate);

  /// True at 29.97 and 59.94: some numbers are left out so that labels keep up with the clock.
  bool dropsFrames() const { return dropped_ > 0; }

  /// The number from 0 of the picture that is shown at a time in seconds.
  std::int64_t at(double seconds) const;

  /// "01:00:00:00", with ";" before the frames where numbers are dropped. Labels begin again after
  /// 24 hours.
  std::string text(std::int64_t frame) const;

  /// The number of the picture on which a label of four fields stands, and nothing for what is
  /// none. With `drops` labels are counted as those that leave out numbers, where the rate has
  /// such.
  std::optional<std::int64_t> labelled(std::string_view label, bool drops) const;

  /// When a picture begins, in seconds.
  double seconds(std::int64_t frame) const { return static_cast<double>(frame) / rate_; }

  /// The picture that one hour's label stands on.
  std::int64_t firstOfHour(int hour) const;

 private:
  std::int64_t perTenMinutes() const { return 600 * perSecond_ - 9 * dropped_; }

  double rate_;
  std::int64_t perSecond_;    // labels of a second
  std::int64_t dropped_ = 0;  // numbers left out at each full minute but the tenth ones
};

}  // namespace velra
