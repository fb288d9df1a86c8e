// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainFormWindow.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>

#include "platform/settings/MachineSettings.h"
#include "shell/frmMain.h"
#include "support/TestApplication.h"

namespace velra {
namespace {

using Shown = std::vector<std::string>;

class MainFormWindowTest : public ::testing::Test, protected test::TestApplication {
 protected:
  QAction* action(const char* name) {
    auto* found = window.findChild<QAction*>(QLatin1String(name));
    if (!found) ADD_FAILURE() << "no action " << name;
    return found;
  }

  frmMain rules{app};
  MainFormWindow window{app, rules};
};

/// Menus and entries in their order, each with its name and caption.
QStringList entriesOf(const QList<QAction*>& actions, const QString& indent = {}) {
  QStringList lines;
  for (const QAction* each : actions) {
    if (!each->isVisible()) continue;
    lines << indent + (each->isSeparator() ? QStringLiteral("-")
                                           : each->objectName() + QLatin1Char(' ') + each->text());
    if (each->menu()) lines << entriesOf(each->menu()->actions(), indent + QLatin1Char(' '));
  }
  return lines;
}

constexpr const char* kMenus = R"(mnuFile &File
 mnuFileOpen &Open...
 mnuFileSave &Save
 mnuFileSaveAs Sav&e As...
 mnuFileFind &Find...
 -
 mnuFileNew &New
 mnuImportToFS Import To FileSystem
 mnuExportToDB Export To Database
 -
 mnuFileExportAs Ex&port As...
 mnuFileImport Impo&rt...
 mnuFileFindShots Find S&hots...
 mnuFileRecover Recover &Unsaved Work...
 mnuFileIndependent Make This Copy &Independent...
 -
 mnuFileClose &Close
mnuEdit &Edit
 mnuEditMetadata Edit M&etadata...
 mnuEditAttributes Edit A&ssigned/Unassingned flags...
 mnuAddChild A&ppend child...
 mnuAddMainExpr Add Main E&xpression
  mnuAddMainVideo Append Main V&ideo...
  mnuAddMainAudio Add Main A&udio...
  mnuAddMainTranscript Add Main T&ranscipt...
mnuView &View
 mnuViewToolbar &Toolbar
 mnuViewStatusBar Status &Bar
 -
 mnuListViewMode_0 Lar&ge Icons
 mnuListViewMode_1 S&mall Icons
 mnuListViewMode_2 &List
 mnuListViewMode_3 &Details
 -
 mnuViewArrangeIcons Arrange &Icons
 -
 mnuViewRefresh &Refresh
 mnuViewOptions &Options...
 mnuViewWebBrowser &Web Browser
mnuLanguage Language
 mnuEnglish English
 mnuItalian Italian
 mnuDutch Dutch
 mnuGerman German
 mnuFrench French
 mnuCLDisabled CrossLanguage Disabled
mnuOptions Options
 mnuConnection Connection...
mnuHelp &Help
 mnuHelpContents &Contents
 mnuHelpSearchForHelpOn &Search For Help On...
 -
 mnuHelpAbout &About )";

TEST_F(MainFormWindowTest, TheMenusStandInTheirOrderWithTheirCaptions) {
  const QStringList lines = entriesOf(window.menuBar()->actions());
  EXPECT_EQ(lines.join(QLatin1Char('\n')).toStdString(), kMenus);
  EXPECT_EQ(action("mnuFileNew")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
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

TEST_F(MainFormWindowTest, HelpIsThePageOfTheWindow) {
  QTemporaryDir guide;
  QDir(guide.path()).mkdir(QStringLiteral("en"));
  for (const char* page : {"index", "search", "main-window", "forms", "trouble"}) {
    QFile file(guide.filePath(QStringLiteral("en/%1.html").arg(QLatin1String(page))));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
  }
  machineSettings.write(ApplicationModule::kMachineSection, "HelpPath", guide.path().toStdString());
  QTextBrowser browser;
  QDesktopServices::setUrlHandler(QStringLiteral("file"), &browser, "setSource");
  const auto opened = [&](const std::function<void()>& ask) {
    browser.setSource(QUrl(QStringLiteral("nothing:")));
    ask();
    return browser.source().fileName().toStdString();
  };
  QDialog form(&window);
  form.setObjectName(QStringLiteral("MediaForm"));
  QMessageBox box(&form);
  QDialog recover(&window);
  recover.setObjectName(QStringLiteral("RecoverDialog"));
  EXPECT_EQ(opened([&] { action("mnuHelpContents")->trigger(); }), "index.html");
  EXPECT_EQ(opened([&] { action("mnuHelpSearchForHelpOn")->trigger(); }), "search.html");
  EXPECT_EQ(opened([&] { QTest::keyClick(&window, Qt::Key_F1); }), "main-window.html");
  EXPECT_EQ(opened([&] { QTest::keyClick(&box, Qt::Key_F1); }), "forms.html");
  EXPECT_EQ(opened([&] { QTest::keyClick(&recover, Qt::Key_F1); }), "trouble.html");
  EXPECT_EQ(opened([&] { QTest::keyClick(&box, Qt::Key_F1, Qt::ShiftModifier); }), "");
  QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
  EXPECT_EQ(ui.takeShown(), Shown{});
}

TEST_F(MainFormWindowTest, CommandsWithoutAFunctionSaySo) {
  const std::string noHelp =
      "Unable to display Help Contents. There is no Help associated with this project.";
  const struct {
    const char* name;
    const char* toolTip;  // of a button of the tool bar
    std::string text;     // "": nothing happens
  } rows[] = {
      {"tbToolBar_Back", "Back", "Add 'Back' button code."},
      {"tbToolBar_Forward", "Forward", "Add 'Forward' button code."},
      {"tbToolBar_Cut", "Cut", "Add 'mnuEditCut_Click' code."},
      {"tbToolBar_Copy", "Copy", "Add 'mnuEditCopy_Click' code."},
      {"tbToolBar_Paste", "Paste", "Add 'mnuEditPaste_Click' code."},
      {"tbToolBar_Delete", "Delete", "Add 'mnuFileDelete_Click' code."},
      {"tbToolBar_Properties", "Properties", "Add 'mnuFileProperties_Click' code."},
      {"tbToolBar_ViewLargeIcons", "View Large Icons", ""},
      {"tbToolBar_ViewSmallIcons", "View Small Icons", ""},
      {"tbToolBar_ViewList", "View List", ""},
      {"tbToolBar_ViewDetails", "View Details", ""},
      {"mnuViewRefresh", nullptr, "Add 'mnuViewRefresh_Click' code."},
      {"mnuViewOptions", nullptr, "Add 'mnuViewOptions_Click' code."},
      {"mnuViewWebBrowser", nullptr, "Add 'mnuViewWebBrowser_Click' code."},
      {"mnuListViewMode_2", nullptr, ""},
      {"mnuHelpContents", nullptr, noHelp},
      {"mnuHelpSearchForHelpOn", nullptr, noHelp},
  };
  for (const auto& row : rows) {
    action(row.name)->trigger();
    EXPECT_EQ(ui.takeShown(), row.text.empty() ? Shown{} : Shown{"plain: " + row.text});
    if (row.toolTip) {
      EXPECT_EQ(action(row.name)->toolTip(), QLatin1String(row.toolTip));
    }
  }
  auto* bar = window.findChild<QToolBar*>(QStringLiteral("tbToolBar"));
  QWidget* button = bar->widgetForAction(action("tbToolBar_Cut"));
  button->setAttribute(Qt::WA_UnderMouse);  // and the mouse goes while the box is open
  action("tbToolBar_Cut")->trigger();
  EXPECT_FALSE(button->underMouse());
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
  for (const bool due : {false, true}) {
    due ? timer->start(0) : timer->stop();  // as after its tick
    window.showSplash();
    timer->setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window.findChild<QWidget*>(QStringLiteral("frmSplash")) == nullptr; }));
  }
}

TEST_F(MainFormWindowTest, TheFirstPaintingOfAWorkTakesOffTheTreesWhatADialogHasLeft) {
  struct PaintCount : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++count;
      return false;
    }
  } paintings;
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::processEvents();
  window.findChild<QAbstractItemView*>()->viewport()->installEventFilter(&paintings);
  window.showProgress(0, 10);
  for (const std::size_t done : {1U, 2U}) {
    QTest::qSleep(60);
    window.showProgress(done, 10);
    EXPECT_EQ(paintings.count, 1) << "they do not change meanwhile";
  }
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
