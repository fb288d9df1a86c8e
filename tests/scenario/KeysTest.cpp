// SPDX-License-Identifier: GPL-3.0-or-later

// The keys of the main window, by the names of the windows that they open.
#include <gtest/gtest.h>

#include "scenario/Desktop.h"
#include "scenario/Person.h"
#include "widgets/main/SplashWindow.h"

namespace velra::test {
namespace {

TEST(Keys, OfTheMainWindowDoWhatTheMenusDo) {
  Desktop desktop;
  Person person(desktop.window);
  desktop.start(desktop.sample());
  delete desktop.window.findChild<SplashWindow*>();  // which would be the active one
  const auto strike = [&](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    desktop.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &desktop.window; }));
    test::strike(key, modifiers);
  };
  desktop.click("tvwMainTree", QStringLiteral("Original English sound version"));
  const auto focused = [] { return QApplication::focusWidget()->objectName(); };
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* opens;
  } keys[] = {
      {Qt::Key_O, Qt::ControlModifier, "dlgCommonDialog"},
      {Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, "dlgCommonDialog"},
      {Qt::Key_F, Qt::ControlModifier, "SearchDialog"},
      {Qt::Key_F2, Qt::NoModifier, "VersionForm"},
      {Qt::Key_Return, Qt::NoModifier, "VersionForm"},
  };
  for (const auto& row : keys) {
    bool met = false;
    person.willMeet(row.opens, [&](QWidget& window) {
      met = true;
      static_cast<QDialog&>(window).reject();
    });
    strike(row.key, row.modifiers);
    EXPECT_TRUE(met) << row.opens;
  }
  strike(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(focused(), QStringLiteral("tvwExpression"));
  strike(Qt::Key_End);
  person.willMeet("VideoForm", [](QWidget& tool) { press(tool, "CancelButt"); });
  strike(Qt::Key_F2);
  strike(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(focused(), QStringLiteral("tvwMainTree"));

  desktop.app.gAVDoc->setStrTitle("Renamed");
  strike(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(desktop.app.gAVDoc->collObjects().changedObjects().empty());
  // The menu of a tree without a selected node is none, and does not come with the next document.
  desktop.view("tvwMainTree").clearSelection();
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(desktop.view("tvwMainTree").viewport(), &menuKey);
  strike(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(desktop.app.gAVDoc->strTitle(), "AVDocument");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  strike(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(desktop.window.isVisible());
}

}  // namespace
}  // namespace velra::test
