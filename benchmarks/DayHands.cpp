// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayHands.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

#include "widgets/ModalAnswer.h"
#include "widgets/QtText.h"
#include "widgets/main/TreeModel.h"

namespace velra::bench {

namespace {

void breathe() {
  QApplication::processEvents();
}

}  // namespace

void willMeet(const std::vector<Act>& acts) {
  if (acts.empty()) return;
  test::whenModal([acts](QWidget& window) {
    acts.front()(window);
    willMeet({acts.begin() + 1, acts.end()});
  });
}

Act pressing(const char* button) {
  return [button](QWidget& window) { press(window, button); };
}

Act answering(const QString& text) {
  return [text](QWidget& window) {
    auto& box = *window.findChild<QLineEdit*>();
    type(box, text);
    strikeAndWait(box, Qt::Key_Return);
  };
}

Act choosingFile(const std::string& path, int filter) {
  return [=](QWidget& window) {
    auto& dialog = dynamic_cast<QFileDialog&>(window);
    dialog.selectNameFilter(dialog.nameFilters().at(filter));
    dialog.selectFile(pathToQString(path));
    breathe();
    static_cast<QDialog&>(dialog).accept();
  };
}

void strikeAndWait(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&widget, static_cast<Qt::Key>(key), modifiers);
}

void strike(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
  strikeAndWait(widget, key, modifiers);
  breathe();
}

void type(QWidget& widget, const QString& text) {
  strike(widget, Qt::Key_A, Qt::ControlModifier);
  for (const QChar letter : text) {
    QTest::keyClick(&widget, letter.toLatin1());
    breathe();
  }
}

void press(QWidget& window, const char* button) {
  QTest::mouseClick(&control<QAbstractButton>(window, button), Qt::LeftButton);
}

void clickAt(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers modifiers) {
  QTest::mouseClick(&widget, Qt::LeftButton, modifiers, place);
  breathe();
}

void choose(QWidget& window, const char* entry) {
  auto& action = control<QAction>(window, entry);
  if (!action.isEnabled()) qFatal("%s is not open", entry);
  action.trigger();
}

void clickNode(QTreeView& view, TreeNode& node) {
  const QModelIndex index = dynamic_cast<TreeModel&>(*view.model()).indexOf(node);
  view.scrollTo(index);
  breathe();
  const QRect seen = view.visualRect(index) & view.viewport()->rect();
  clickAt(*view.viewport(), seen.center(), Qt::NoModifier);
}

QWidget& boxOf(QWidget& form, const QString& field) {
  for (QWidget* frame : form.findChildren<QWidget*>(QRegularExpression("^Frame1_"))) {
    if (frame->property("title").toString() != field) continue;
    if (auto* text = frame->findChild<QPlainTextEdit*>()) return *text;
  }
  qFatal("no box %s", qPrintable(field));
}

void pause(int milliseconds) {
  QTest::qWait(milliseconds);
}

}  // namespace velra::bench
