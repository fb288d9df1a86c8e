// SPDX-License-Identifier: GPL-3.0-or-later

// Every window of the program over the sample, as a person meets it who hears it.
#include <gtest/gtest.h>

#include <QDialog>
#include <QTabBar>

#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "scenario/Desktop.h"
#include "scenario/Hands.h"
#include "support/TemporaryFolder.h"
#include "widgets/AccessibilityWalk.h"

namespace velra::test {
namespace {

class AccessibleWindows : public ::testing::Test {
 protected:
  static void check(QWidget& window, const std::string& where) {
    std::vector<std::string> faults = accessibilityFaults(window);
    // The toolkit's list of files names each one some time after it is shown.
    if (where == "dlgCommonDialog") std::erase(faults, "no name:  ()");
    EXPECT_EQ(faults, std::vector<std::string>{}) << where;
  }
  /// Walks through all tabs of a window, and what the tool opens, and closes it.
  static void checkAndClose(QWidget& window) {
    if (auto* tabs = window.findChild<QTabBar*>(QStringLiteral("TabStrip1"))) {
      for (int tab = tabs->count() - 1; tab >= 0; --tab) {
        tabs->setCurrentIndex(tab);
        check(window, fromQString(window.windowTitle() + u' ' + tabs->tabText(tab)));
      }
    }
    check(window, fromQString(window.objectName()));
    if (auto* picture = window.findChild<QWidget*>(QStringLiteral("LargePicture"))) {
      picture->show();
      check(*picture, "large picture");
      picture->close();
      whenModal([](QWidget& dialog) {
        check(dialog, "dialog of bounds");
        press(dialog, "CancelButton");
      });
      press(window, "cmdNew");
    }
    static_cast<QDialog&>(window).reject();
  }
  void checkFormsOf(const char* tree, const QString& node) {
    for (const char* entry : {"mnuEditMetadata", "mnuEditAttributes"}) {
      whenModal(checkAndClose);
      desktop_.chooseFromMenu(tree, node, entry);
    }
  }

  TemporaryFolder kept_;
  RescueWriter rescue_{kept_ / "rescue.sqlite"};
  Desktop desktop_;
};

TEST_F(AccessibleWindows, NameAllThatTakesTheFocus) {
  rescue_.run([this](RescueStore& store) {
    const SessionId session = store.begin(desktop_.sample(), "a-machine boot 1 1");
    store.keep(session, {{desktop_.sample(), "AVDocument", "Title", "<a/>", false, {}}});
    store.end(session, SessionEnd::Error);
  });
  desktop_.app.rescue = &rescue_;
  desktop_.start(desktop_.sample());
  const QStringList ladder = desktop_.texts("tvwMainTree");
  for (const QString& node : ladder.mid(0, 4)) checkFormsOf("tvwMainTree", node);
  desktop_.click("tvwMainTree", ladder[1]);
  for (const char* part : {"Picture", "Sound", "Commentary"}) {
    checkFormsOf("tvwExpression", QLatin1String(part) + QStringLiteral(" of Skarholm Light"));
  }
  check(desktop_.window, "main window");
  desktop_.rules.mnuFile_Click();  // opens the entry of unsaved work
  for (const char* entry : {"mnuFileOpen", "mnuFileExportAs", "mnuFileImport", "mnuFileFindShots",
                            "mnuFileRecover", "mnuConnection", "mnuHelpAbout"}) {
    whenModal(checkAndClose);
    desktop_.trigger(entry);
  }
  inTurn({[](QWidget& dialog) {
            check(dialog, "find");
            press(dialog, "OKButt");
          },
          checkAndClose});
  desktop_.trigger("mnuFileFind");
}

}  // namespace
}  // namespace velra::test
