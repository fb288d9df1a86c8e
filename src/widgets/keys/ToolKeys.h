// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "tool/KeyCommands.h"

class QKeyEvent;
class QWidget;

namespace velra {

class LargePicture;

/// The keys of the expression tool, wherever the focus is in its window, except where what has the
/// focus wants them itself: a box of text its arrows, a button the space bar that presses it. Those
/// that play, step and cut count on the tool's own tab alone, and in the window of the large
/// picture, which F11 opens.
class ToolKeys : public QObject {
  Q_OBJECT

 public:
  struct Windows {
    QWidget& form;
    const QWidget& panel;  // the tool on the form's own tab
    LargePicture& picture;
  };

  /// All outlive it.
  ToolKeys(const Windows& windows, ExpressionTool& tool, const ApplicationModule& app);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool press(const QKeyEvent& event, const QWidget& focused);
  bool opensPicture(const QKeyEvent& event);
  void release(const QKeyEvent& event, bool inForm);

  Windows windows_;
  KeyCommands commands_;
};

}  // namespace velra
