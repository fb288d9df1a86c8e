// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QStatusBar>
#include <QTimer>

class QLabel;

namespace velra {

class Announcer;
class WorkBar;

/// The three panels: text, date, time. The text is seen at once even while work keeps the window
/// from its events; of texts that follow one another faster than anybody reads, only some are
/// drawn, and the last one always. The last one is also said to people who hear the window.
class MainStatusBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit MainStatusBar(QWidget* parent);

  void showText(const QString& text);
  /// Beside the text while work lasts: so many parts are done; a total of 0 ends it.
  void showProgress(std::size_t done, std::size_t total);

 private:
  QLabel* addPanel(const char* name, const QString& meaning, int stretch);
  void drawText();
  void updateClock();

  QLabel* text_;
  WorkBar* bar_;
  QLabel* date_;
  QLabel* time_;
  QString pending_;
  QElapsedTimer sinceDrawn_;
  QTimer later_;
  QTimer spoken_{this};
  QTimer clock_;
  Announcer* announcer_;
};

}  // namespace velra
