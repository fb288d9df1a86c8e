// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainPanes.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "platform/settings/UserSettings.h"
#include "support/TemporaryFolder.h"
#include "widgets/Announcer.h"
#include "widgets/WindowPlace.h"
#include "widgets/main/MainStatusBar.h"
#include "widgets/main/NodeTreeView.h"
#include "widgets/main/TreeModel.h"

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

TEST_F(MainPanesTest, TheFocusIsSeenInTreesAndSplitter) {
  const auto highlight = [this](const QColor& active, const QColor& inactive) {
    QPalette colours = panes.palette();
    colours.setColor(QPalette::Active, QPalette::Highlight, active);
    colours.setColor(QPalette::Inactive, QPalette::Highlight, inactive);
    panes.setPalette(colours);
  };
  highlight(Qt::blue, Qt::red);
  panes.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&panes));
  NodeTreeView* const trees[] = {&panes.mainTree(), &panes.expressionTree()};
  Tree* const nodes[] = {&leftTree, &rightTree};
  for (int i : {0, 1}) {
    nodes[i]->replace(std::make_unique<TreeNode>());
    trees[i]->setCurrentIndex(trees[i]->model()->index(0, 0));
  }
  const auto at = [this](const QWidget& widget, QPoint place) {
    return panes.grab().toImage().pixelColor(widget.mapTo(&panes, place));
  };
  const auto selection = [&](const NodeTreeView& tree) {
    const QRect row = tree.visualRect(tree.currentIndex());
    return at(*tree.viewport(), {row.right() - 3, row.center().y()});
  };
  QWidget* const inTurn[] = {trees[0], handle, trees[1]};
  for (QWidget* focused : inTurn) {
    focused->setFocus();
    for (const NodeTreeView* tree : trees) {
      const bool has = tree == focused;
      EXPECT_EQ(at(*tree, {20, 0}) == QColor(Qt::blue), has);  // its frame
      EXPECT_EQ(at(*tree, {20, 1}) == QColor(Qt::blue), has);
      EXPECT_EQ(selection(*tree).blue() > 200, has);
      EXPECT_EQ(selection(*tree).red() > 200, !has);
    }
    EXPECT_EQ(at(*handle, {1, 50}) == QColor(Qt::blue), handle == focused);
  }
  highlight(Qt::blue, Qt::blue);  // as many palettes have it
  EXPECT_NE(selection(panes.mainTree()), selection(panes.expressionTree()));
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

TEST(MainStatusBarTest, TheLastOfManyTextsIsSaidWhileItsWindowIsTheActiveOne) {
  MainStatusBar bar(nullptr);
  QStringList said;
  QObject::connect(bar.findChild<Announcer*>(), &Announcer::said,
                   [&said](const QString& sentence) { said << sentence; });
  bar.showText(QStringLiteral("not heard"));
  auto* timer = bar.findChild<QTimer*>(QStringLiteral("tmrSpoken"));
  EXPECT_TRUE(QTest::qWaitFor([timer] { return !timer->isActive(); }));
  bar.show();
  bar.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bar));
  bar.showText(QStringLiteral("Saving object n. 1"));
  bar.showText(QStringLiteral("Saving object n. 2"));
  EXPECT_TRUE(QTest::qWaitFor([timer] { return !timer->isActive(); }));
  EXPECT_EQ(said, QStringList{QStringLiteral("Saving object n. 2")});
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

  settings.write("Settings", {{"MainLeft", "wide"}, {"MainTop", "1000.5"}});
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
