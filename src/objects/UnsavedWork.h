// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <deque>

#include "rescue/RescueRecords.h"

namespace velra {

class RegisteredObject;
class IOManager;
class ObjectRegistry;

/// Brings what has changed in the open document to the store, so much at a time that nobody feels
/// it, and tells it what has been saved since.
class UnsavedWork {
 public:
  /// An object has gone out of the document.
  void removed(const RegisteredObject& object);

  /// Keeps what was removed, and objects that were changed, for some three milliseconds. True when
  /// more is left. The manager has a store.
  bool keepSome(ObjectRegistry& objects, const IOManager& io);

  /// All has been saved.
  void saved(ObjectRegistry& objects);

 private:
  using Clock = std::chrono::steady_clock;

  bool keepRemoved(const IOManager& io, Clock::time_point end);
  bool keepChanged(ObjectRegistry& objects, const IOManager& io, Clock::time_point end);

  std::deque<KeptObject> removed_;  // by identifier, and not looked at on the disk yet
};

}  // namespace velra
