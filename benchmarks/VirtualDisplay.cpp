// SPDX-License-Identifier: GPL-3.0-or-later
#include "VirtualDisplay.h"

namespace velra::bench {

VirtualDisplay::VirtualDisplay() {
  constexpr int kPatience = 10'000;
  // It tells the number that it has found free when it is ready, and does not begin anew when its
  // last client goes.
  const QStringList arguments =
      QStringLiteral("-displayfd 1 -noreset -screen 0 1600x1200x24 -nolisten tcp").split(' ');
  server_.start(QStringLiteral("Xvfb"), arguments);
  if (!server_.waitForReadyRead(kPatience)) return;
  name_ = ":" + server_.readLine().trimmed().toStdString();
}

VirtualDisplay::~VirtualDisplay() {
  server_.terminate();
  server_.waitForFinished();
}

}  // namespace velra::bench
