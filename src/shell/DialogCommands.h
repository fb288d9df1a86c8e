// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/ConnectionDialog.h"
#include "shell/SearchDialog.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class FormOwner;
class TreeIcons;
struct ConnectionSettings;

/// The commands of the main window that open a dialog over it: search and connection.
class DialogCommands {
 public:
  DialogCommands(ApplicationModule& app, FormOwner& window, const TreeIcons& icons)
      : app_(app), window_(window), icons_(icons), connectionDialog_(app) {}

  /// Without one the commands do nothing.
  void setPresenter(DialogPresenter* presenter) { presenter_ = presenter; }

  void mnuFileFind();
  void mnuConnection();

 private:
  void ShowConnectionDialog(ConnectionSettings& settings, bool& flag);

  ApplicationModule& app_;
  FormOwner& window_;
  const TreeIcons& icons_;
  DialogPresenter* presenter_ = nullptr;
  SearchDialog searchDialog_;
  ConnectionDialog connectionDialog_;
};

}  // namespace velra
