// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LateRelease.h"

#include <system_error>

namespace velra {

void LateRelease::add(std::shared_ptr<void> piece) {
  try {
    // What a thread has done lives as long as its future, so each one lets go of what it was given.
    last_ = std::async(std::launch::async,
                       [before = std::move(last_), last = std::move(piece)]() mutable {
                         before = {};
                         last = {};
                       });
  } catch (const std::system_error&) {
    // Where the system refuses a thread, it has ended here with what was to be done on it.
  }
}

void LateRelease::await() {
  last_ = {};
}

}  // namespace velra
