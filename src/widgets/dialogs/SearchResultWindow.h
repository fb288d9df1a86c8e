// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTimer>

class QTreeView;

namespace velra {

class ApplicationModule;
class SearchResultDialog;
class SearchResultModel;

/// The list of the objects that a search has found, and of those that it still finds: the search
/// goes on between the events, with the cursor of work behind the scenes.
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
  void searchOn();
  void showFound();
  void showCurrent();
  void clickSoon();
  void ListView1_Click();
  void shareWidths();

  SearchResultDialog& dialog_;
  QTreeView* ListView1_;
  SearchResultModel* rows_;
  QTimer searching_;
};

}  // namespace velra
