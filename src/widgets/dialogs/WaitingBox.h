// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <future>

namespace velra {

/// Tells what the program waits for, while all windows paint themselves and take no commands. It
/// closes by itself and in no other way.
class WaitingBox : public QDialog {
  Q_OBJECT

 public:
  WaitingBox(const QString& text, QWidget* owner);

  /// Shows the box until the work is done.
  void showUntil(const std::future<void>& done);

  void reject() override {}
};

}  // namespace velra
