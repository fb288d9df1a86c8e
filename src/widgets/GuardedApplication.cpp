// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/GuardedApplication.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "protocol/MainWindow.h"
#include "widgets/LightFrames.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/MessageBoxes.h"

namespace velra {

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {
  setStyle(new LightFrames);  // whose owner is the application
  installEventFilter(&screenBound_);
  std::atexit(exiting);
}

// A program that ends as it should has no application any more when this is called.
void GuardedApplication::exiting() {
  const auto* application = dynamic_cast<GuardedApplication*>(instance());
  if (application && application->exitWish_) application->exitWish_();
}

void GuardedApplication::endAtOnce(const std::exception& failure) {
  const std::string text = failure.what();
  std::fprintf(stderr, "%s\n", text.c_str());
  // The box runs events of its own, and what fails in them has nobody left to ask.
  if (!std::exchange(ending_, true)) {
    const std::string kept = lastWish_ ? lastWish_() : std::string();
    while (QGuiApplication::overrideCursor()) QGuiApplication::restoreOverrideCursor();
    showMessageBox(QApplication::activeModalWidget(), QMessageBox::Critical,
                   toQString(kept.empty() ? text : text + "\n\n" + kept), QMessageBox::Ok,
                   QMessageBox::Ok);
  }
  std::_Exit(1);
}

void GuardedApplication::guarded(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& failure) {
    endAtOnce(failure);
  }
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const LeftInWork&) {
    return true;
  } catch (const std::exception& failure) {
    endAtOnce(failure);
  }
}

}  // namespace velra
