// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/RowText.h"

#include <QFocusEvent>

#include "widgets/forms/StorableText.h"

namespace velra {

RowText::RowText(QWidget* parent) : QLineEdit(parent) {
  setValidator(new StorableTextValidator(this));
}

void RowText::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const int length = static_cast<int>(text().size());
  if (selectedText().size() == length) setSelection(length, -length);
}

void RowText::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const bool comesBack =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!comesBack) setCursorPosition(0);
}

}  // namespace velra
