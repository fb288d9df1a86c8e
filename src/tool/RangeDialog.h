// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace velra {

/// The rules of the dialog in which the bounds of a segment are typed as time codes. One instance
/// serves the whole program, so that `bCancel` outlives each showing.
class RangeDialog {
 public:
  /// The eight boxes in order of filling; the names are those of the controls.
  enum Field : std::size_t { hh1, mm1, ss1, ff1, hh2, mm2, ss2, ff2, kFieldCount };

  static constexpr int kKeyUp = 38;
  static constexpr int kKeyDown = 40;

  /// Fills the boxes: seconds, and frames per second (0 when unknown: no frames can be typed).
  void SetTime(double dStart, double dend, double dFrameRate);

  double dGetStartTime() const { return timeFrom(hh1); }
  double dGetEndTime() const { return timeFrom(hh2); }
  bool bCancel() const { return bCancel_; }

  /// A box's text changed, typed or written. Returns what the box must show: the same text, or the
  /// last valid value when that is none.
  const std::string& Change(Field field, const std::string& text);
  /// Up and Down without Shift, Control or Alt step the value; any other key does nothing.
  const std::string& KeyDown(Field field, int keyCode, int shift);

  void OKButton() { bCancel_ = false; }
  void CancelButton() { bCancel_ = true; }

  const std::string& text(Field field) const { return boxes_[field].text; }
  bool enabled(Field field) const;

 private:
  struct Box {
    std::string text = "00";
    double value = 0;  // the last valid content
  };

  double highest(Field field) const;
  bool bValidField(const std::string& text, double lowest, double highest) const;
  void fill(Field first, double seconds);
  double timeFrom(Field first) const;

  std::array<Box, kFieldCount> boxes_;
  double dFrameRate_ = 0;
  bool bCancel_ = false;
};

}  // namespace velra
