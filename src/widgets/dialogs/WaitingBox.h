// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <atomic>
#include <future>
#include <stop_token>

class QProgressBar;
class QPushButton;

namespace velra {

/// Waits for work for 0.2 s, which is too short for a box; true when it has ended. The windows
/// paint meanwhile, while keys and clicks wait: no box keeps them from the windows yet.
bool isDoneUnnoticed(const std::future<void>& work);

/// Tells what the program waits for, while all windows paint themselves and take no commands. It
/// closes by itself, when the work is done: Cancel and Escape ask work that can be stopped to stop.
class WaitingBox : public QDialog {
  Q_OBJECT

 public:
  /// `stop` outlives the box; null for work that cannot be stopped.
  WaitingBox(const QString& text, QWidget* owner, std::stop_source* stop);

  /// How much of the work is done, from 0 to 1. Without it nobody knows.
  void setShare(double share);

  /// Shows the box until the work is done, and with it the share that another thread tells, if any.
  void showUntil(const std::future<void>& done, const std::atomic<double>* share);

  void reject() override;

 private:
  std::stop_source* stop_;
  QProgressBar* bar_;
  QPushButton* cancel_;
};

}  // namespace velra
