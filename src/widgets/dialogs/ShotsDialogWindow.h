// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "app/Message.h"

class QDoubleSpinBox;
class QListWidget;
class QPushButton;

namespace velra {

class Announcer;
class ApplicationModule;
class ShotsDialog;

/// The list of shots with their first pictures, each to be ticked or not, and above it what counts
/// as a cut.
class ShotsDialogWindow : public QDialog {
 public:
  /// The dialog must outlive the window.
  ShotsDialogWindow(const ApplicationModule& app, ShotsDialog& dialog, QWidget* owner);
  ~ShotsDialogWindow() override;
  ShotsDialogWindow(const ShotsDialogWindow&) = delete;
  ShotsDialogWindow& operator=(const ShotsDialogWindow&) = delete;

  /// Esc and the close box do what Cancel does.
  void reject() override;

 private:
  QWidget* makeSearch();
  QWidget* makeButtons();
  QDoubleSpinBox* addNumber(QLayout& row, const char* name, Message caption, double value,
                            double most);
  void fillList();

  const ApplicationModule& app_;
  ShotsDialog& dialog_;
  QListWidget* lstShots_;
  Announcer& announcer_;
  QDoubleSpinBox* numThreshold_ = nullptr;
  QDoubleSpinBox* numShortest_ = nullptr;
};

}  // namespace velra
