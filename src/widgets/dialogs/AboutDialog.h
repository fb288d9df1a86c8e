// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLabel;

namespace velra {

class ApplicationModule;

/// Name and version of the program, and the way to the system's information.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  /// The module outlives the dialog.
  AboutDialog(const ApplicationModule& app, QWidget* owner);

 private:
  QLabel* addLabel(const char* name, const QString& text);
  void addButtons();
  void StartSysInfo();

  const ApplicationModule& app_;
};

}  // namespace velra
