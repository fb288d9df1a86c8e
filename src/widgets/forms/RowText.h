// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace velra {

/// A text of a set that shows its beginning: at rest, and when the Tab key comes and selects it
/// all.
class RowText : public QLineEdit {
 public:
  explicit RowText(QWidget* parent);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace velra
