// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "tool/KeyCommands.h"

class QKeyEvent;
class QWidget;

namespace velra {

/// The keys of the expression tool, wherever the focus is in its window, except where what has the
/// focus wants them itself: a box of text its arrows, a button the space bar that presses it. Those
/// that play, step and cut count on the tool's own tab alone.
class ToolKeys : public QObject {
  Q_OBJECT

 public:
  /// `window` is the form and `panel` the tool on its tab. All outlive it.
  ToolKeys(QWidget& window, const QWidget& panel, ExpressionTool& tool,
           const ApplicationModule& app);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool press(const QKeyEvent& event, const QWidget& focused);
  void release(const QKeyEvent& event);

  QWidget& window_;
  const QWidget& panel_;
  KeyCommands commands_;
};

}  // namespace velra
