// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/SignalQuit.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <csignal>

namespace velra {

namespace {

sigset_t endingSignals() {
  sigset_t set{};
  sigemptyset(&set);
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) sigaddset(&set, signal);
  return set;
}

// As any program that knows nothing of them.
void letSignalsEnd() {
  const sigset_t set = endingSignals();
  ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

}  // namespace

void SignalQuit::holdSignals() {
  const sigset_t set = endingSignals();
  ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

SignalQuit::SignalQuit()
    : signals_([] {
        const sigset_t set = endingSignals();
        return ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
      }()) {
  if (!signals_) {
    letSignalsEnd();
    return;
  }
  holdSignals();
  notifier_.emplace(signals_.number(), QSocketNotifier::Read);
  // A second signal finds the usual end, in case the first one is not followed.
  QObject::connect(&*notifier_, &QSocketNotifier::activated, [this] {
    notifier_->setEnabled(false);
    signalfd_siginfo first{};
    if (::read(signals_.number(), &first, sizeof first) > 0) letSignalsEnd();
    asked_ = true;
    // Not quit(), which does nothing until the program's own loop runs.
    QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
  });
}

SignalQuit::~SignalQuit() {
  letSignalsEnd();
}

}  // namespace velra
