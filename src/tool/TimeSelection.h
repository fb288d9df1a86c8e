// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class AdvancedSlider;
class ToolFace;

/// A time that was pressed and waits for a second one: while it waits, a line blinks at its place
/// on the timeline, and the time code swaps its colours.
class TimeSelection {
 public:
  TimeSelection(AdvancedSlider& advsld, ToolFace& face) : advsld_(advsld), face_(face) {}

  bool waits() const { return waits_; }
  /// Seconds; what the last `begin` was given.
  double start() const { return start_; }

  void begin(double seconds);
  /// Takes line and colours back, if a time waits.
  void end();
  void tick();

 private:
  AdvancedSlider& advsld_;
  ToolFace& face_;
  bool waits_ = false;
  bool coloursSwapped_ = false;
  double start_ = 0;
};

}  // namespace velra
