// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <future>
#include <stop_token>

class QPushButton;

namespace velra {

/// Tells what the program waits for, while all windows paint themselves and take no commands. It
/// closes by itself, when the work is done: Cancel and Escape ask work that can be stopped to stop.
class WaitingBox : public QDialog {
  Q_OBJECT

 public:
  /// `stop` outlives the box; null for work that cannot be stopped.
  WaitingBox(const QString& text, QWidget* owner, std::stop_source* stop);

  /// Shows the box until the work is done.
  void showUntil(const std::future<void>& done);

  void reject() override;

 private:
  std::stop_source* stop_;
  QPushButton* cancel_;
};

}  // namespace velra
