// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <future>
#include <memory>
#include <utility>

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

  /// Takes a thing over, to end it behind those that came before.
  template <class Thing>
  void take(Thing thing) {
    add(std::make_shared<Thing>(std::move(thing)));
  }

  /// Returns when all is given back, for who measures or counts what is left.
  void await();

 private:
  void add(std::shared_ptr<void> piece);

  std::future<void> last_;  // of a thread, which it waits for when it goes
};

}  // namespace velra
