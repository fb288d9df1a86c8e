// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "shell/ConnectionDialog.h"

class QFormLayout;
class QLineEdit;

namespace velra {

/// The window that asks for the parameters of a server.
class ConnectionDialogWindow : public QDialog {
 public:
  /// The dialog must outlive the window.
  ConnectionDialogWindow(const ApplicationModule& app, ConnectionDialog& dialog, QWidget* owner);
  ~ConnectionDialogWindow() override;
  ConnectionDialogWindow(const ConnectionDialogWindow&) = delete;
  ConnectionDialogWindow& operator=(const ConnectionDialogWindow&) = delete;

  /// Esc and the close box do what Cancel does.
  void reject() override;

 private:
  void addBox(const ApplicationModule& app, ConnectionDialog::Box box, QFormLayout& rows);
  void changed(ConnectionDialog::Box box, QLineEdit& edit);

  ConnectionDialog& dialog_;
};

}  // namespace velra
