// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>

#include "platform/UserInterface.h"
#include "widgets/BusyCursor.h"
#include "widgets/dialogs/WaitingBox.h"

namespace velra {

/// A box with a bar for work in the thread of the windows. It comes when the work lasts.
class ProgressBox : public ProgressSign {
 public:
  ProgressBox(const QString& sentence, QWidget* owner);

  /// Windows paint; what a person does meanwhile comes to them when the work is done.
  void show(double share) override;

 private:
  const BusyCursor cursor_;
  WaitingBox box_;
  QElapsedTimer since_;
  qint64 next_;  // when it is worth a look again, in milliseconds
};

}  // namespace velra
