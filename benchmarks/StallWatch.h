// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <atomic>
#include <thread>

#include "platform/files/FileHandle.h"

class QWidget;

namespace velra::bench {

/// The longest stretch in milliseconds in which the thread of the windows did not come to
/// something.
struct Stall {
  double clock = 0;
  double alone = 0;      // of it, without the time in which others had the processors
  double processor = 0;  // of it, work of that thread
};

/// Measures how long the thread of the windows leaves a person waiting. A thread beside it posts an
/// event each millisecond, unless the last one is still to be taken, and what passes until it is
/// taken is what a key pressed at that moment would have waited: to within that millisecond. The
/// longest is found by what it would be alone on the machine.
class StallWatch : public QObject {
 public:
  /// Made on the thread of the windows. The window, which outlives it, is the one whose paintings
  /// count.
  explicit StallWatch(QWidget& window);
  ~StallWatch() override;
  StallWatch(const StallWatch&) = delete;
  StallWatch& operator=(const StallWatch&) = delete;

  /// What is measured begins, and ends with all that follows from it: both let events run.
  void begin();
  void end();

  /// Until an event was taken.
  const Stall& longest() const { return longest_; }
  /// Until an event was taken or the window was painted.
  double longestUnpainted() const { return longestUnpainted_; }

 private:
  void beat(const std::stop_token& stop);
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void taken();
  void seen();
  Stall now() const;

  FileHandle times_;  // of the thread of the windows, as the system counts them
  std::atomic<bool> waits_ = false;
  // Written by the thread beside while none waits.
  Stall posted_;
  double seenAt_ = 0;
  Stall longest_;
  double longestUnpainted_ = 0;
  std::jthread beats_;  // last: it uses the others
};

}  // namespace velra::bench
