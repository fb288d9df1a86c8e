// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LateRelease.h"

#include <chrono>
#include <system_error>

namespace velra {

namespace {

// Who gave something away has more to give back itself, and two threads that do so at once wait for
// each other at every block.
constexpr std::chrono::milliseconds kLater{200};

}  // namespace

void LateRelease::add(std::shared_ptr<void> piece) {
  try {
    if (!thread_.joinable()) {
      thread_ = std::jthread([this](const std::stop_token& stop) { release(stop); });
    }
  } catch (const std::system_error&) {
    return;  // where the system refuses a thread, it ends here
  }
  const std::lock_guard lock(mutex_);
  waiting_.push_back(std::move(piece));
  changed_.notify_all();
}

void LateRelease::release(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  while (changed_.wait(lock, stop, [this] { return !waiting_.empty(); })) {
    changed_.wait_for(lock, stop, kLater, [this] { return awaited_; });
    std::vector<std::shared_ptr<void>> pieces = std::exchange(waiting_, {});
    releasing_ = true;
    lock.unlock();
    pieces.clear();
    lock.lock();
    releasing_ = false;
    changed_.notify_all();
  }
}

void LateRelease::await() {
  std::unique_lock lock(mutex_);
  awaited_ = true;
  changed_.notify_all();
  changed_.wait(lock, [this] { return waiting_.empty() && !releasing_; });
  awaited_ = false;
}

}  // namespace velra
