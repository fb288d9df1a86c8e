// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

namespace velra {

/// How far work has come that lasts longer than half a second. Works that follow one another
/// without a pause are one wait. It runs no event of the window, so that no command begins, but has
/// the whole window painted often enough that nobody feels it stand still, from the start.
class WorkBar : public QProgressBar {
  Q_OBJECT

 public:
  explicit WorkBar(QWidget* parent);

  /// So many parts of the work are done; a total of 0 ends it.
  void follow(std::size_t done, std::size_t total);

 private:
  void end();
  void paintWindow();

  QTimer hiding_;
  QElapsedTimer sinceBegun_;
  QElapsedTimer sinceDrawn_;
  int untilDrawn_ = 0;  // milliseconds, from then to the next painting
  bool allToDraw_ = false;
};

}  // namespace velra
