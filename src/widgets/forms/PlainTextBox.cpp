// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/PlainTextBox.h"

#include <QMimeData>
#include <QTextDocument>

#include "widgets/forms/StorableText.h"

namespace velra {

PlainTextBox::PlainTextBox(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
}

void PlainTextBox::setLocked(bool locked) {
  setReadOnly(locked);
  if (locked) {
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
}

QString PlainTextBox::enteredText() const {
  // The plain text of the document would turn hard blanks into common ones.
  QString text = document()->toRawText();
  text.replace(QChar::ParagraphSeparator, u'\n');
  text.replace(QChar::LineSeparator, u'\n');
  return storableText(text);
}

void PlainTextBox::insertFromMimeData(const QMimeData* source) {
  insertPlainText(storableText(source->text()));
}

}  // namespace velra
