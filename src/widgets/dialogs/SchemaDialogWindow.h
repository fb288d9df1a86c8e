// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QTreeWidget;
class QTreeWidgetItem;

namespace velra {

class ApplicationModule;
class AVDocSchemaDialog;
class Announcer;

/// The window of the dialog of assigned fields.
class SchemaDialogWindow : public QDialog {
 public:
  /// The dialog must outlive the window.
  SchemaDialogWindow(const ApplicationModule& app, AVDocSchemaDialog& dialog, QWidget* owner);
  ~SchemaDialogWindow() override;
  SchemaDialogWindow(const SchemaDialogWindow&) = delete;
  SchemaDialogWindow& operator=(const SchemaDialogWindow&) = delete;

  /// Esc and the close box do what Cancel does.
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeList();
  void fillList();
  void makeButtons(const ApplicationModule& app);
  void tickMoved(QTreeWidgetItem& row);
  void shareWidths();

  AVDocSchemaDialog& dialog_;
  QTreeWidget* ListView1_;
  Announcer& announcer_;
  const QString fieldStays_;  // what is said of a tick that springs back
};

}  // namespace velra
