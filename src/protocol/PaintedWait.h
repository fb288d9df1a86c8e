// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <system_error>

#include "protocol/MainWindow.h"

namespace velra {

/// Does work that waits for the disk on a thread beside, while the main window, which may be null,
/// paints, and returns what it returns or raises. To be called inside of a LongWork. Nothing else
/// may touch what the work touches; painting reads the nodes of the trees alone.
template <class Work>
auto paintedWait(MainWindow* window, Work work) {
  constexpr std::chrono::milliseconds kBetweenPaintings{20};
  std::future<decltype(work())> result;
  try {
    if (window) result = std::async(std::launch::async, std::ref(work));
  } catch (const std::system_error&) {  // the machine gives no further thread
  }
  if (!result.valid()) return work();
  while (result.wait_for(kBetweenPaintings) == std::future_status::timeout) {
    window->workWaits();
  }
  return result.get();
}

}  // namespace velra
