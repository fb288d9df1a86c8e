// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <array>

#include "tool/RangeDialog.h"

class QGroupBox;
class QLineEdit;

namespace velra {

/// The dialog in which the bounds of a segment are typed. Its close box leaves the last answer.
class RangeDialogWindow : public QDialog {
 public:
  /// The rules must outlive the window, and are filled before it is made.
  RangeDialogWindow(RangeDialog& rules, QWidget* owner);

  /// Esc is the Cancel button.
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QGroupBox* makeFrame(const char* name, const QString& caption, std::size_t firstField);
  QLineEdit* makeBox(RangeDialog::Field field);
  void show(RangeDialog::Field field, const std::string& text);
  void cancel();

  RangeDialog& rules_;
  std::array<QLineEdit*, RangeDialog::kFieldCount> boxes_{};
};

}  // namespace velra
