// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace velra {

/// A text box of several lines that the Tab key leaves. A locked one looks as usual and can be
/// selected and copied with the mouse and the keyboard.
class PlainTextBox : public QPlainTextEdit {
 public:
  explicit PlainTextBox(QWidget* parent);

  void setLocked(bool locked);

  /// The text as it was entered, hard blanks included.
  QString enteredText() const;

 protected:
  void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace velra
