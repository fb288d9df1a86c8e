// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>

namespace velra {

class MainFormWindow;

/// The tool bar of the main window: a button for each row of its table, named "tbToolBar_" and its
/// key without blanks.
class MainToolBar : public QToolBar {
  Q_OBJECT

 public:
  explicit MainToolBar(MainFormWindow& window);

 private:
  static void lower(QWidget& button);
};

}  // namespace velra
