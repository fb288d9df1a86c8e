// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QPlainTextEdit;

namespace velra::test {

/// What a person does at the windows, who finds every control by its name.

template <class Widget = QWidget>
Widget& control(QWidget& window, const char* name) {
  auto* found = window.findChild<Widget*>(QLatin1String(name));
  if (!found) qFatal("no control %s", name);
  return *found;
}

/// The text box of a field on a tab of fields.
QPlainTextEdit& textOf(QWidget& form, const QString& field);

/// Clicks a button.
void press(QWidget& window, const char* button);
/// Chooses an entry of the menu that has popped up.
void choose(const char* action);

/// A range of the timeline or a picture of the strip by the title that its caption begins with; -1
/// for none.
int partOf(QWidget& window, const char* control, const QString& title);
void clickPart(QWidget& window, const char* control, const QString& title,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void doubleClickPart(QWidget& window, const char* control, const QString& title);
/// The titles of the selected ranges or pictures, in their order in the list.
QStringList selectedParts(QWidget& window, const char* control);

/// A key for what has the focus in the modal window (else in any), or for the menu that is open.
void strike(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void strikeText(const QString& text);
/// Walks with the Tab key until the control has the focus.
void tabTo(const char* name);
/// Walks down the open menu to an entry and takes it.
void strikeEntry(const char* action);
/// Walks there and presses the space bar.
void strikeButton(const char* name);

/// Acts in the modal windows that a command will open one after the other. An act has to close its
/// window.
void inTurn(const std::vector<std::function<void(QWidget&)>>& acts);
/// Answers the next boxes, each of which must show its text.
struct BoxAnswer {
  std::string text;
  const char* button;
};
void willAnswer(const std::vector<BoxAnswer>& answers);
/// Types the answer to the next input box.
void willType(const QString& text);
/// Types the bounds, as "mm:ss:ff", into the next range dialog and takes them.
void typeBounds(QWidget& dialog, const QString& start, const QString& end);

}  // namespace velra::test
