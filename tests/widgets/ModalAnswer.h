// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace velra::test {

/// Waits until a modal window is open and hands it to `act`, which has to close it: set up before
/// the call that opens it, since that call returns only when the window has closed.
inline void whenModal(std::function<void(QWidget&)> act) {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, qApp, [timer, act = std::move(act)] {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible()) return;
    timer->stop();
    timer->deleteLater();
    act(*modal);
  });
  timer->start(5);
}

}  // namespace velra::test
