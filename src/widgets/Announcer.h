// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace velra {

/// Says sentences to people who hear a window, wherever its focus is: screen readers speak a
/// notification that appears, by its name. Nothing shows.
class Announcer : public QWidget {
  Q_OBJECT

 public:
  /// The window owns it.
  explicit Announcer(QWidget* window);

  void say(const QString& sentence);
  /// For what may change many times in a second, as the time while a key is held down: only the
  /// last one of a while is said, and none if a sentence comes meanwhile.
  void sayOften(const QString& value);

 signals:
  void said(const QString& sentence);

 private:
  QElapsedTimer sinceSaid_;
  QTimer later_;
  QString waiting_;
};

}  // namespace velra
