// SPDX-License-Identifier: GPL-3.0-or-later

// Every window of the program over the sample, as a person meets it who hears it.
#include <gtest/gtest.h>

#include <QTabBar>

#include "scenario/Desktop.h"
#include "scenario/Hands.h"
#include "scenario/Person.h"
#include "widgets/AccessibilityWalk.h"

namespace velra::test {
namespace {

class AccessibleWindows : public ::testing::Test {
 protected:
  static void check(QWidget& window, const std::string& where) {
    EXPECT_EQ(accessibilityFaults(window), std::vector<std::string>{}) << where;
  }
  /// Walks through all tabs of a window and closes it.
  static void checkAndClose(QWidget& window) {
    if (auto* tabs = window.findChild<QTabBar*>(QStringLiteral("TabStrip1"))) {
      for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        check(window, fromQString(window.windowTitle() + u' ' + tabs->tabText(tab)));
      }
    }
    check(window, fromQString(window.objectName()));
    static_cast<QDialog&>(window).reject();
  }
  void checkFormsOf(const char* tree, const QString& node) {
    for (const char* entry : {"mnuEditMetadata", "mnuEditAttributes"}) {
      whenModal(checkAndClose);
      desktop_.chooseFromMenu(tree, node, entry);
    }
  }

  Desktop desktop_;
};

TEST_F(AccessibleWindows, NameAllThatTakesTheFocus) {
  desktop_.start(desktop_.sample());
  const QStringList ladder = desktop_.texts("tvwMainTree");
  for (const QString& node : ladder.mid(0, 4)) checkFormsOf("tvwMainTree", node);
  desktop_.click("tvwMainTree", ladder[1]);
  checkFormsOf("tvwExpression", desktop_.texts("tvwExpression")[1]);
  check(desktop_.window, "main window");
  for (const char* entry : {"mnuFileFind", "mnuConnection", "mnuHelpAbout"}) {
    whenModal(checkAndClose);
    desktop_.trigger(entry);
  }
}

}  // namespace
}  // namespace velra::test
