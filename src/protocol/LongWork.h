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
      : window_(window) {
    if (window_) window_->workBegins(parts, leaving);
  }
  ~LongWork() {
    if (window_) window_->workEnds();
  }
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

 private:
  MainWindow* window_;
};

}  // namespace velra
