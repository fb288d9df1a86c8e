// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario/Hands.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTest>

#include "widgets/ModalAnswer.h"
#include "widgets/tool/PaintedParts.h"

namespace velra::test {

namespace {

constexpr int kMostTabs = 100;

PaintedParts& partsOf(QWidget& window, const char* name) {
  return dynamic_cast<PaintedParts&>(control(window, name));
}

QWidget& focused() {
  if (QWidget* menu = QApplication::activePopupWidget()) return *menu;
  QWidget* window = QApplication::activeModalWidget();
  if (!window) window = QApplication::activeWindow();
  // Without a window manager the splash window is active for a while.
  if (window && window->windowType() == Qt::SplashScreen) window = window->parentWidget();
  if (!window) qFatal("no window is active");
  return window->focusWidget() ? *window->focusWidget() : *window;
}

void typeInto(QWidget& window, const char* box, const QString& text) {
  auto& line = control<QLineEdit>(window, box);
  line.selectAll();
  QTest::keyClicks(&line, text);
}

}  // namespace

QPlainTextEdit& textOf(QWidget& form, const QString& field) {
  for (QWidget* frame : form.findChildren<QWidget*>(QRegularExpression("^Frame1_"))) {
    if (frame->property("title").toString() != field) continue;
    if (auto* text = frame->findChild<QPlainTextEdit*>()) return *text;
  }
  qFatal("no box %s", qPrintable(field));
}

void press(QWidget& window, const char* button) {
  QTest::mouseClick(&control<QAbstractButton>(window, button), Qt::LeftButton);
}

void choose(const char* action) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) qFatal("no menu is open");
  for (QAction* entry : menu->actions()) {
    if (entry->objectName() != QLatin1String(action)) continue;
    if (!entry->isEnabled()) qFatal("%s is not open", action);
    return QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                             menu->actionGeometry(entry).center());
  }
  qFatal("no entry %s", action);
}

int partOf(QWidget& window, const char* name, const QString& title) {
  PaintedParts& parts = partsOf(window, name);
  for (int part = 0; part < parts.partCount(); ++part) {
    if (parts.partName(part).startsWith(QStringLiteral("'%1':").arg(title))) return part;
  }
  return -1;
}

namespace {

QPoint middleOf(QWidget& window, const char* name, const QString& title) {
  const int part = partOf(window, name, title);
  if (part < 0) qFatal("%s has no %s", name, qPrintable(title));
  return partsOf(window, name).partRect(part).center();
}

}  // namespace

void clickPart(QWidget& window, const char* name, const QString& title,
               Qt::KeyboardModifiers modifiers) {
  QTest::mouseClick(&control(window, name), Qt::LeftButton, modifiers,
                    middleOf(window, name, title));
}

void doubleClickPart(QWidget& window, const char* name, const QString& title) {
  QTest::mouseDClick(&control(window, name), Qt::LeftButton, Qt::NoModifier,
                     middleOf(window, name, title));
}

QStringList selectedParts(QWidget& window, const char* name) {
  PaintedParts& parts = partsOf(window, name);
  QStringList titles;
  for (int part = 0; part < parts.partCount(); ++part) {
    if (parts.partSelected(part)) titles << parts.partName(part).section(QLatin1Char('\''), 1, 1);
  }
  return titles;
}

void strike(int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&focused(), static_cast<Qt::Key>(key), modifiers);
}

void strikeText(const QString& text) {
  QTest::keyClicks(&focused(), text);
}

void tabTo(const char* name) {
  for (int tabs = 0; focused().objectName() != QLatin1String(name); ++tabs) {
    if (tabs == kMostTabs) qFatal("the Tab key does not come to %s", name);
    strike(Qt::Key_Tab);
  }
}

void strikeEntry(const char* action) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) qFatal("no menu is open");
  for (int step = 0; !menu->activeAction() || menu->activeAction()->objectName() != action;
       ++step) {
    if (step == kMostTabs) qFatal("no open entry %s", action);
    strike(Qt::Key_Down);
  }
  strike(Qt::Key_Return);
}

void strikeButton(const char* name) {
  tabTo(name);
  strike(Qt::Key_Space);
}

void inTurn(const std::vector<std::function<void(QWidget&)>>& acts) {
  if (acts.empty()) return;
  whenModal([acts](QWidget& window) {
    acts.front()(window);
    inTurn({acts.begin() + 1, acts.end()});
  });
}

void willAnswer(const std::vector<BoxAnswer>& answers) {
  std::vector<std::function<void(QWidget&)>> acts;
  for (const BoxAnswer& answer : answers) {
    acts.emplace_back([answer](QWidget& box) {
      EXPECT_EQ(box.property("text").toString().toStdString(), answer.text);
      press(box, answer.button);
    });
  }
  inTurn(acts);
}

void willType(const QString& text) {
  whenModal([text](QWidget& box) {
    typeInto(box, "txtInput", text);
    strike(Qt::Key_Return);
  });
}

void typeBounds(QWidget& dialog, const QString& start, const QString& end) {
  const char* const boxes[][3] = {{"mm1", "ss1", "ff1"}, {"mm2", "ss2", "ff2"}};
  for (int bound = 0; bound < 2; ++bound) {
    const QStringList fields = (bound == 0 ? start : end).split(QLatin1Char(':'));
    for (int field = 0; field < 3; ++field) typeInto(dialog, boxes[bound][field], fields[field]);
  }
  press(dialog, "OKButton");
}

}  // namespace velra::test
