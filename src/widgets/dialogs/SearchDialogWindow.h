// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace velra {

class ApplicationModule;
class SearchDialog;

/// The window that asks what to search for.
class SearchDialogWindow : public QDialog {
 public:
  /// The dialog must outlive the window.
  SearchDialogWindow(const ApplicationModule& app, SearchDialog& dialog, QWidget* owner);
  ~SearchDialogWindow() override;
  SearchDialogWindow(const SearchDialogWindow&) = delete;
  SearchDialogWindow& operator=(const SearchDialogWindow&) = delete;

  /// Esc and the close box do what Cancel does.
  void reject() override;

 private:
  QCheckBox* addCheck(const char* name, const char* caption, bool ticked);
  void addButtons(const ApplicationModule& app);
  void OKButt_Click();

  SearchDialog& dialog_;
  QLineEdit* Text1_;
  QCheckBox* Check1_ = nullptr;
  QCheckBox* Check2_ = nullptr;
};

}  // namespace velra
