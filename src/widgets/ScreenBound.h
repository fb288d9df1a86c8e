// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace velra {

/// Keeps windows from opening larger than the screen they stand on, and over its edge. It filters
/// the events of the whole application, since boxes and file dialogs are windows too.
class ScreenBound : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static void bound(QWidget& window);
};

}  // namespace velra
