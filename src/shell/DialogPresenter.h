// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class ConnectionDialog;
class FormOwner;
class RecoverDialog;
class SearchDialog;
class SearchResultDialog;
class ShotsDialog;

/// Shows the dialogs of the main window's commands; the windows stand behind it, or a script in
/// tests. Each one stands over the owner, which takes nothing meanwhile, until it has been
/// unloaded.
class DialogPresenter {
 public:
  virtual ~DialogPresenter() = default;

  virtual void showSearchDialog(FormOwner& owner, SearchDialog& dialog) = 0;
  /// Has the dialog search on while it is shown.
  virtual void showSearchResults(FormOwner& owner, SearchResultDialog& dialog) = 0;
  virtual void showConnectionDialog(FormOwner& owner, ConnectionDialog& dialog) = 0;
  virtual void showRecoverDialog(FormOwner& owner, RecoverDialog& dialog) = 0;
  virtual void showShotsDialog(FormOwner& owner, ShotsDialog& dialog) = 0;
};

}  // namespace velra
