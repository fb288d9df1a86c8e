// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

namespace velra {

/// Gives back what nobody looks at any more on a thread of its own: the memory of tens of thousands
/// of objects takes a tenth of a second, which a person would wait for. What comes here must touch
/// nothing at its end that another thread may use. Called on one thread.
class LateRelease {
 public:
  LateRelease() = default;
  LateRelease(const LateRelease&) = delete;
  LateRelease& operator=(const LateRelease&) = delete;
  /// Waits until all is given back.
  ~LateRelease() = default;

  /// Takes a thing over, to end it a moment later and behind those that came before.
  template <class Thing>
  void take(Thing thing) {
    add(std::make_shared<Thing>(std::move(thing)));
  }

  /// Returns when all is given back, for who measures or counts what is left.
  void await();

 private:
  void add(std::shared_ptr<void> piece);
  void release(const std::stop_token& stop);

  std::mutex mutex_;
  std::condition_variable_any changed_;
  std::vector<std::shared_ptr<void>> waiting_;
  bool releasing_ = false;
  bool awaited_ = false;
  std::jthread thread_;  // last: it uses the others, and ends when nothing waits
};

}  // namespace velra
