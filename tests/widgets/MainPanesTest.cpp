#include "widgets/MainPanes.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QTest>

#include "platform/UserSettings.h"
#include "support/TemporaryFolder.h"
#include "widgets/MainStatusBar.h"
#include "widgets/NodeTreeView.h"
#include "widgets/TreeModel.h"
#include "widgets/WindowPlace.h"

namespace velra {
namespace {

class MainPanesTest : public ::testing::Test {
 protected:
  MainPanesTest()
      : left(
            leftTree, [](const std::string&) { return QIcon(); }, nullptr),
        right(
            rightTree, [](const std::string&) { return QIcon(); }, nullptr),
        panes(left, right, nullptr) {
    panes.setHeadings(QStringLiteral("Left"), QStringLiteral("Right"));
    panes.resize(600, 300);
    panes.show();
    handle = panes.findChild<QWidget*>(QStringLiteral("imgSplitter"));
    bar = panes.findChild<QFrame*>(QStringLiteral("picSplitter"));
  }

  void dragTo(int x) {
    QTest::mousePress(handle, Qt::LeftButton);
    QTest::mouseMove(handle, handle->mapFromParent(QPoint(x, 100)));
  }

  Tree leftTree, rightTree;
  TreeModel left, right;
  MainPanes panes;
  QWidget* handle = nullptr;
  QFrame* bar = nullptr;
};

TEST_F(MainPanesTest, TheBarFollowsTheMouseAndThePanesTheRelease) {
  const int before = panes.mainTree().width();
  dragTo(300);
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(bar->x(), 300);
  EXPECT_EQ(panes.mainTree().width(), before);
  QTest::mouseRelease(handle, Qt::LeftButton);
  EXPECT_FALSE(bar->isVisible());
  EXPECT_EQ(panes.mainTree().width(), 300);
  EXPECT_EQ(panes.expressionTree().x(), 303);
  EXPECT_EQ(panes.findChild<QLabel*>(QStringLiteral("lblTitle_1"))->x(), 303);
}

TEST_F(MainPanesTest, TheEdgesStopTheBarAndTheLeastWidthsThePanes) {
  dragTo(-50);
  EXPECT_EQ(bar->x(), 33);
  QTest::mouseRelease(handle, Qt::LeftButton);
  EXPECT_EQ(panes.mainTree().width(), 100);
  dragTo(900);
  EXPECT_EQ(bar->x(), 567);
  QTest::mouseRelease(handle, Qt::LeftButton);
  EXPECT_EQ(panes.mainTree().width(), 500);
  panes.resize(400, 300);
  EXPECT_EQ(panes.mainTree().width(), 300);
}

TEST_F(MainPanesTest, ArrowKeysMoveTheSplitter) {
  const int before = panes.mainTree().width();
  QTest::keyClick(handle, Qt::Key_Right);
  EXPECT_EQ(panes.mainTree().width(), before + 10);
  QTest::keyClick(handle, Qt::Key_Left);
  EXPECT_EQ(panes.mainTree().width(), before);
}

TEST(MainStatusBarTest, TheLastOfManyTextsIsShown) {
  MainStatusBar bar(nullptr);
  auto* label = bar.findChild<QLabel*>(QStringLiteral("sbStatusBar_1"));
  bar.showText(QStringLiteral("Opening object n. 1"));
  EXPECT_EQ(label->text(), QStringLiteral("Opening object n. 1"));
  for (int i = 2; i <= 500; ++i) bar.showText(QStringLiteral("Opening object n. %1").arg(i));
  EXPECT_TRUE(QTest::qWaitFor(
      [label] { return label->text() == QStringLiteral("Opening object n. 500"); }));
}

TEST(WindowPlaceTest, PlaceAndSizeComeBackInTwips) {
  const test::TemporaryFolder folder;
  UserSettings settings(folder / "velra.ini");
  QWidget first;
  restorePlace(first, settings);
  EXPECT_EQ(first.pos(), QPoint(67, 67));
  EXPECT_EQ(first.size(), QSize(433, 433));

  first.setGeometry(40, 50, 700, 500);
  storePlace(first, settings);
  EXPECT_EQ(settings.read("Settings", "MainWidth", ""), "10500");
  EXPECT_EQ(settings.read("Settings", "ViewMode", ""), "velra");
  QWidget second;
  restorePlace(second, settings);
  EXPECT_EQ(second.geometry(), first.geometry());

  settings.write("Settings", "MainLeft", "wide");
  settings.write("Settings", "MainTop", "1000.5");
  restorePlace(second, settings);
  EXPECT_EQ(second.pos(), QPoint(67, 67));
}

TEST(WindowPlaceTest, AMinimisedWindowKeepsWhatIsStored) {
  const test::TemporaryFolder folder;
  UserSettings settings(folder / "velra.ini");
  QWidget window;
  window.resize(700, 500);
  window.showMinimized();
  storePlace(window, settings);
  EXPECT_EQ(settings.read("Settings", "MainWidth", "none"), "none");
  EXPECT_EQ(settings.read("Settings", "ViewMode", ""), "velra");
}

}  // namespace
}  // namespace velra
