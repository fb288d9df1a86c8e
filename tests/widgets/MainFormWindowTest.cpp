#include "widgets/MainFormWindow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "app/ApplicationModule.h"
#include "platform/MachineSettings.h"
#include "platform/UserSettings.h"
#include "shell/frmMain.h"
#include "support/ScriptedUserInterface.h"
#include "support/TemporaryFolder.h"
#include "widgets/ModalAnswer.h"

namespace velra {
namespace {

using Shown = std::vector<std::string>;

class MainFormWindowTest : public ::testing::Test {
 protected:
  QAction* action(const char* name) {
    auto* found = window.findChild<QAction*>(QLatin1String(name));
    if (!found) ADD_FAILURE() << "no action " << name;
    return found;
  }

  test::TemporaryFolder folder;
  test::ScriptedUserInterface ui;
  MachineSettings machineSettings{folder / "machine.ini"};
  UserSettings userSettings{folder / "velra.ini"};
  ApplicationModule app{ui, MessageCatalogue(InterfaceLanguage::Default), machineSettings,
                        userSettings};
  frmMain rules{app};
  MainFormWindow window{app, rules};
};

TEST_F(MainFormWindowTest, TheFileMenuStandsInItsOrder) {
  QStringList names;
  for (const QAction* each : window.findChild<QMenu*>(QStringLiteral("mnuFile"))->actions()) {
    if (each->isVisible()) names << each->objectName();
  }
  EXPECT_EQ(names.join(QLatin1Char(' ')),
            QStringLiteral("mnuFileOpen mnuFileSave mnuFileSaveAs mnuFileFind mnuFileBar1 "
                           "mnuFileNew mnuImportToFS mnuExportToDB mnuFileBar5 mnuFileClose"));
  EXPECT_EQ(action("mnuFileNew")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
  EXPECT_EQ(action("mnuFileOpen")->text(), QStringLiteral("&Open..."));
}

TEST_F(MainFormWindowTest, EntriesFollowTheMenuState) {
  MenuState state;
  state.mnuAddMainExpr = false;
  state.mnuAddMainAudio = false;
  state.language = 4;
  window.showMenuState(state);
  EXPECT_FALSE(action("mnuAddMainExpr")->isEnabled());
  EXPECT_FALSE(action("mnuAddMainAudio")->isEnabled());
  EXPECT_TRUE(action("mnuAddChild")->isEnabled());
  EXPECT_TRUE(action("mnuFrench")->isChecked());
  EXPECT_FALSE(action("mnuEnglish")->isChecked());
  window.findChild<QMenu*>(QStringLiteral("mnuFile"))->aboutToShow();
  EXPECT_FALSE(action("mnuExportToDB")->isEnabled());
  EXPECT_FALSE(window.findChild<QMenu*>(QStringLiteral("mnuView"))->isEnabled());
}

TEST_F(MainFormWindowTest, LanguageEntriesSetTheLanguageOfTheVocabulary) {
  action("mnuGerman")->trigger();
  EXPECT_EQ(app.iLanguage, 3);
  action("mnuCLDisabled")->trigger();
  EXPECT_EQ(app.iLanguage, ApplicationModule::kCrossLanguageOff);
  EXPECT_EQ(ui.takeShown(), Shown{"plain: " + app.LoadResString(1164)});
}

TEST_F(MainFormWindowTest, CommandsWithoutAFunctionSaySo) {
  const struct {
    const char *name, *text;
  } rows[] = {
      {"tbToolBar_Back", "Add 'Back' button code."},
      {"tbToolBar_Cut", "Add 'mnuEditCut_Click' code."},
      {"tbToolBar_Properties", "Add 'mnuFileProperties_Click' code."},
      {"tbToolBar_ViewLargeIcons", nullptr},
      {"mnuViewRefresh", "Add 'mnuViewRefresh_Click' code."},
      {"mnuHelpContents",
       "Unable to display Help Contents. There is no Help associated with this project."},
  };
  for (const auto& row : rows) {
    action(row.name)->trigger();
    EXPECT_EQ(ui.takeShown(), row.text ? Shown{std::string("plain: ") + row.text} : Shown{});
  }
}

TEST_F(MainFormWindowTest, TheAboutBoxLooksForTheSystemInformation) {
  test::whenModal([this](QWidget& box) {
    EXPECT_EQ(box.objectName(), QStringLiteral("frmAbout"));
    QMetaObject::invokeMethod(box.findChild<QWidget*>(QStringLiteral("cmdSysInfo")), "click");
    EXPECT_EQ(ui.takeShown(), Shown{"plain: System Information Is Unavailable At This Time"});
    QMetaObject::invokeMethod(box.findChild<QWidget*>(QStringLiteral("cmdOK")), "click");
  });
  action("mnuHelpAbout")->trigger();
}

TEST_F(MainFormWindowTest, ClosingTakesAllWindowsAlongAndKeepsThePlace) {
  window.show();
  window.showSplash();
  EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("frmSplash"))->isVisible());
  QWidget other;
  other.show();
  action("mnuFileClose")->trigger();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(other.isVisible());
  EXPECT_EQ(userSettings.read("Settings", "ViewMode", ""), "velra");
}

TEST_F(MainFormWindowTest, ASplashThatComesLateGoesAllTheSame) {
  auto* timer = window.findChild<QTimer*>(QStringLiteral("Timer1"));
  timer->stop();  // as after its tick
  window.showSplash();
  timer->setInterval(0);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return window.findChild<QWidget*>(QStringLiteral("frmSplash")) == nullptr; }));
}

TEST_F(MainFormWindowTest, TheToolBarsPlaceIsGivenToThePanes) {
  window.show();
  auto* bar = window.findChild<QToolBar*>(QStringLiteral("tbToolBar"));
  const int before = window.centralWidget()->height();
  action("mnuViewToolbar")->trigger();
  EXPECT_FALSE(bar->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.centralWidget()->height() > before; }));
}

}  // namespace
}  // namespace velra
