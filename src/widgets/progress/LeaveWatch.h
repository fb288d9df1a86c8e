// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace velra {

/// Lets a person close a window amid work that keeps its thread busy. From a quarter of a second on
/// events run a few times in a second, but what would begin a command is dropped: keys, clicks and
/// drops.
class LeaveWatch : public QObject {
  Q_OBJECT

 public:
  explicit LeaveWatch(QWidget& window) : window_(window) {}

  /// Work begins.
  void begin();

  /// True when the window was asked to close since the work began. It closes when the work has been
  /// left.
  bool isAsked();

 private:
  bool eventFilter(QObject* receiver, QEvent* event) override;

  QWidget& window_;
  QElapsedTimer sinceBegun_;
  QElapsedTimer sinceRun_;
  bool asked_ = false;
};

}  // namespace velra
