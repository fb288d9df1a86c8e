// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QSize>
#include <QString>
#include <map>

#include "forms/FormPresenter.h"
#include "shell/DialogPresenter.h"

class QDialog;
class QWidget;

namespace velra {

class ApplicationModule;

/// Shows forms and dialogs as modal windows. Each kind opens in the size that it had last in this
/// run.
class QtFormPresenter : public FormPresenter, public DialogPresenter {
 public:
  explicit QtFormPresenter(const ApplicationModule& app) : app_(app) {}

  /// The window that forms stand over when no other of the program is active; null before it
  /// exists.
  void setMainWindow(QWidget* window);

  void showForm(FormOwner& owner, LoadedForm& form) override;
  void showSchemaDialog(FormOwner& owner, AVDocSchemaDialog& dialog) override;
  void showSearchDialog(FormOwner& owner, SearchDialog& dialog) override;
  void showSearchResults(FormOwner& owner, SearchResultDialog& dialog) override;
  void showConnectionDialog(FormOwner& owner, ConnectionDialog& dialog) override;
  void showShotsDialog(FormOwner& owner, ShotsDialog& dialog) override;
  void showRecoverDialog(FormOwner& owner, RecoverDialog& dialog) override;

  /// The window behind an owner: itself if it is one, else the active one.
  QWidget* windowOf(FormOwner& owner) const;

 private:
  void showModally(QDialog& window);

  const ApplicationModule& app_;
  QPointer<QWidget> mainWindow_;
  std::map<QString, QSize> sizes_;  // by the windows' names
};

}  // namespace velra
