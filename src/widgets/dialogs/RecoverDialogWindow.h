// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <cstddef>
#include <functional>

#include "app/Message.h"

class QDialogButtonBox;
class QPushButton;
class QTreeWidget;

namespace velra {

class ApplicationModule;
class RecoverDialog;

/// The list of unsaved work, with a button for each thing to do with it.
class RecoverDialogWindow : public QDialog {
 public:
  /// The dialog must outlive the window.
  RecoverDialogWindow(const ApplicationModule& app, RecoverDialog& dialog, QWidget* owner);
  ~RecoverDialogWindow() override;
  RecoverDialogWindow(const RecoverDialogWindow&) = delete;
  RecoverDialogWindow& operator=(const RecoverDialogWindow&) = delete;

  /// Esc and the close box do what Close does.
  void reject() override;

 private:
  using Click = std::function<void(std::size_t row)>;

  void makeList();
  void fillList();
  void makeButtons();
  QPushButton* addButton(QDialogButtonBox& buttons, const char* name, Message caption,
                         const Click& click);
  std::size_t currentRow() const;
  void openButtons();

  const ApplicationModule& app_;
  RecoverDialog& dialog_;
  QTreeWidget* lvwKept_;
  QPushButton* cmdRecover_ = nullptr;
  QPushButton* cmdSaveAsFiles_ = nullptr;
  QPushButton* cmdDrop_ = nullptr;
};

}  // namespace velra
