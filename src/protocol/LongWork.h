// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "protocol/MainWindow.h"

namespace velra {

/// While it lives, the main window shows how far work of so many parts has come; who does a part
/// calls `workSteps`. Works follow one another and do not nest.
class LongWork {
 public:
  /// The window, which outlives it, may be null.
  LongWork(MainWindow* window, std::size_t parts, Leaving leaving = Leaving::NotBefore)
      : window_(window), leaving_(leaving) {
    setParts(parts);
  }
  ~LongWork() {
    if (window_) window_->workEnds();
  }
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

  /// For a work that learns late how many they are; none is done then.
  void setParts(std::size_t parts) {
    if (window_) window_->workBegins(parts, leaving_);
  }

 private:
  MainWindow* window_;
  Leaving leaving_;
};

}  // namespace velra
