// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <exception>
#include <functional>
#include <string>
#include <utility>

#include "widgets/ScreenBound.h"

namespace velra {

/// The one place where failures that nobody foresaw end up: each event and the start run under its
/// guard. Such a failure is printed on standard error, shown in a critical box, and ends the
/// program with status 1 at that point. No step of the shutdown runs, since the document may be in
/// any state: nothing of it is deleted or written.
class GuardedApplication : public QApplication {
  Q_OBJECT

 public:
  GuardedApplication(int& argc, char** argv);

  /// What is done before the box of such a failure shows. It touches no document, and gives a
  /// sentence that is shown behind the failure's text, or "".
  void setLastWish(std::function<std::string()> wish) { lastWish_ = std::move(wish); }

  /// What is done when the toolkit ends the program by itself, as it does when the display goes
  /// away: nothing that is on the stack comes to its end then.
  void setExitWish(std::function<void()> wish) { exitWish_ = std::move(wish); }

  /// Runs what is not an event under the same guard.
  void guarded(const std::function<void()>& action);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  static void exiting();
  [[noreturn]] void endAtOnce(const std::exception& failure);

  ScreenBound screenBound_;
  std::function<std::string()> lastWish_;
  std::function<void()> exitWish_;
  bool ending_ = false;
};

}  // namespace velra
