// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QTreeView;

namespace velra {

class ApplicationModule;
class SearchResultDialog;

/// The list of the objects that a search has found.
class SearchResultWindow : public QDialog {
 public:
  /// The dialog must outlive the window.
  SearchResultWindow(const ApplicationModule& app, SearchResultDialog& dialog, QWidget* owner);
  ~SearchResultWindow() override;
  SearchResultWindow(const SearchResultWindow&) = delete;
  SearchResultWindow& operator=(const SearchResultWindow&) = delete;

  /// Esc and the close box do what Cancel does.
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeList();
  void addButtons(const ApplicationModule& app);
  void clickSoon();
  void ListView1_Click();
  void shareWidths();

  SearchResultDialog& dialog_;
  QTreeView* ListView1_;
};

}  // namespace velra
