// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace velra::test {

/// The modal window that a person has to answer, if one is open; a box that closes by itself is
/// none.
inline QWidget* modalToAnswer() {
  QWidget* modal = QApplication::activeModalWidget();
  const bool waits =
      modal && modal->isVisible() && modal->objectName() != QLatin1String("WaitingBox");
  return waits ? modal : nullptr;
}

/// Waits until a modal window is open and hands it to `act`, which has to close it: set up before
/// the call that opens it, since that call returns only when the window has closed.
inline void whenModal(std::function<void(QWidget&)> act) {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, qApp, [timer, act = std::move(act)] {
    QWidget* modal = modalToAnswer();
    if (!modal) return;
    timer->stop();
    timer->deleteLater();
    act(*modal);
  });
  timer->start(5);
}

}  // namespace velra::test
