// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <optional>

#include "platform/files/FileHandle.h"

namespace velra {

/// While it lives, the signals by which a system ends its programs (TERM, HUP, INT) leave the event
/// loop like the command to quit: what was not saved is kept, and nothing of a document is written.
class SignalQuit {
 public:
  /// Holds those signals back until one lives. To be called before the first thread of the program
  /// starts, as the toolkit's do: a signal takes any thread that lets it through.
  static void holdSignals();

  SignalQuit();
  SignalQuit(const SignalQuit&) = delete;
  SignalQuit& operator=(const SignalQuit&) = delete;
  ~SignalQuit();

  /// True when a signal has come.
  bool isAsked() const { return asked_; }

 private:
  FileHandle signals_;
  std::optional<QSocketNotifier> notifier_;
  bool asked_ = false;
};

}  // namespace velra
