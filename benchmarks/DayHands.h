// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QFileDialog;
class QTreeView;

namespace velra {
struct TreeNode;
}

namespace velra::bench {

/// What a person does at the real windows. Events run after each stroke, as they do between the
/// strokes of a person; not after one that closes a window, whose command goes on at once.

template <class Widget = QWidget>
Widget& control(QWidget& window, const char* name) {
  auto* found = window.findChild<Widget*>(QLatin1String(name));
  if (!found) qFatal("no control %s", name);
  return *found;
}

using Act = std::function<void(QWidget& window)>;

/// Acts in the modal windows that the next command opens one after the other; each closes its own.
void willMeet(const std::vector<Act>& acts);

/// Presses a button, by which the window may close.
Act pressing(const char* button);
/// Types a text into the box of a question and takes it.
Act answering(const QString& text);
/// Types a path into a file dialog and takes it; the filter's place counts from 0.
Act choosingFile(const std::string& path, int filter = 0);

void strike(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// The key that opens a window, which stands until the command is done.
void strikeAndWait(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(QWidget& widget, const QString& text);
/// The button may close the window.
void press(QWidget& window, const char* button);
void clickAt(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers modifiers);

/// Chooses an entry of a menu, which has to be open.
void choose(QWidget& window, const char* entry);

/// Brings a node of a tree into view and clicks it.
void clickNode(QTreeView& view, TreeNode& node);

/// The text box of a field on a tab of fields.
QWidget& boxOf(QWidget& form, const QString& field);

/// Lets events run for so long.
void pause(int milliseconds);

}  // namespace velra::bench
