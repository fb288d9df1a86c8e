// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace velra {

class ApplicationModule;

/// The guide, as web pages in the folder that the machine's settings name, with a folder for each
/// language of the interface. While it lives, F1 in any window of the program opens that window's
/// page.
class Guide : public QObject {
  Q_OBJECT

 public:
  /// `app` outlives it.
  explicit Guide(const ApplicationModule& app);

  /// Has the desktop show a page, such as "index". False when there is none, or nothing to show it
  /// with.
  bool open(const QString& page) const;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  const ApplicationModule& app_;
};

}  // namespace velra
