// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QContextMenuEvent>
#include <QImage>
#include <QTest>

#include "shell/TreeIcons.h"
#include "support/TemporaryFolder.h"
#include "widgets/QtText.h"
#include "widgets/main/NodeTreeView.h"
#include "widgets/main/TreeIconPainter.h"
#include "widgets/main/TreeModel.h"

namespace velra {
namespace {

std::unique_ptr<TreeNode> node(const std::string& text, const std::string& image = "Version") {
  auto made = std::make_unique<TreeNode>();
  made->Text = text;
  made->Image = std::make_shared<const TreeIcon>(TreeIcon{image, {}});
  made->SelectedImage = std::make_shared<const TreeIcon>(TreeIcon{image + "/selected", {}});
  return made;
}

// root { first { below }, second }
std::unique_ptr<TreeNode> sample() {
  auto root = node("root");
  addNode(addNode(*root, node("first")), node("below"));
  addNode(*root, node("second"));
  return root;
}

class TreeViewTest : public ::testing::Test {
 protected:
  TreeViewTest()
      : model(
            tree, [this](const std::string& key) { return iconsAsked += key + ";", QIcon(); },
            nullptr),
        tester(&model),
        view(model, nullptr) {
    QObject::connect(&view, &NodeTreeView::pressed, &view,
                     [this](MouseButton button) { heard += "press " + std::to_string(button); });
    QObject::connect(&view, &NodeTreeView::nodeClicked, &view,
                     [this](TreeNode& clicked) { heard += " click " + clicked.Text + ";"; });
    QObject::connect(&view, &NodeTreeView::entered, &view, [this] { heard += "entered;"; });
    QObject::connect(&view, &NodeTreeView::formAsked, &view, [this] { heard += "return;"; });
    QObject::connect(&view, &NodeTreeView::deleteReleased, &view, [this] { heard += "delete;"; });
    tree.replace(sample());
    view.resize(300, 300);
    view.show();
    view.expandAll();
  }

  QModelIndex indexOf(const std::string& text) {
    QModelIndex found;
    tree.walk([&](TreeNode& each) {
      if (each.Text == text) found = model.indexOf(each);
      return !found.isValid();
    });
    return found;
  }
  QPoint middleOf(const std::string& text) { return view.visualRect(indexOf(text)).center(); }
  std::string selected() { return tree.selected() ? tree.selected()->Text : ""; }

  Tree tree;
  std::string iconsAsked;
  TreeModel model;
  QAbstractItemModelTester tester;
  NodeTreeView view;
  std::string heard;
};

TEST_F(TreeViewTest, ClicksTellTheButtonAndSelect) {
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middleOf("second"));
  EXPECT_EQ(heard, "press 1 click second;");
  EXPECT_EQ(selected(), "second");

  heard.clear();
  const QPoint place = middleOf("below");
  QTest::mousePress(view.viewport(), Qt::RightButton, {}, place);
  QContextMenuEvent menu(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
  QApplication::sendEvent(view.viewport(), &menu);
  EXPECT_EQ(heard, "press 2 click below;");
  EXPECT_EQ(selected(), "below");
  EXPECT_EQ(view.menuPosition(), view.viewport()->mapToGlobal(place));
}

TEST_F(TreeViewTest, EmptyGroundAndTheOpeningArrowAreNoNodes) {
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(150, 290));
  const QRect first = view.visualRect(indexOf("first"));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    QPoint(first.left() - 6, first.center().y()));
  EXPECT_EQ(heard, "press 1press 1");
  EXPECT_EQ(selected(), "");
}

TEST_F(TreeViewTest, KeysWorkLikeTheMouse) {
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middleOf("root"));
  heard.clear();
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(heard, "press 1 click first;");
  heard.clear();
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(view.viewport(), &menu);
  EXPECT_EQ(heard, "press 2 click first;");
  EXPECT_EQ(view.menuPosition(),
            view.viewport()->mapToGlobal(view.visualRect(indexOf("first")).bottomLeft()));
  heard.clear();
  QTest::keyClick(&view, Qt::Key_Delete, Qt::ShiftModifier);
  QTest::keyClick(&view, Qt::Key_Delete);
  QTest::keyClick(&view, Qt::Key_Delete, Qt::KeypadModifier);
  EXPECT_EQ(heard, "delete;delete;");
  heard.clear();
  QTest::keyClick(&view, Qt::Key_Return);
  QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(&view, &heldDown);
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&view, &byTab);
  EXPECT_EQ(heard, "return;entered;");
}

TEST_F(TreeViewTest, TheAsteriskOpensAllBelowTheCurrentNodeAndNothingElse) {
  view.collapse(indexOf("first"));
  view.setCurrentIndex(indexOf("second"));
  QTest::keyClick(&view, Qt::Key_Asterisk);
  EXPECT_FALSE(view.isExpanded(indexOf("first")));
  view.collapse(indexOf("root"));
  view.setCurrentIndex(indexOf("root"));
  QTest::keyClick(&view, Qt::Key_Asterisk);
  EXPECT_TRUE(view.visualRect(indexOf("below")).isValid());
}

TEST_F(TreeViewTest, TheSelectedNodeShowsItsSelectedImage) {
  view.setCurrentIndex(indexOf("first"));
  iconsAsked.clear();
  model.data(indexOf("first"), Qt::DecorationRole);
  model.data(indexOf("second"), Qt::DecorationRole);
  EXPECT_EQ(iconsAsked, "Version/selected;Version;");
}

TEST_F(TreeViewTest, ResetForgetsTheSelectionAndExpandOpensOneNode) {
  view.setCurrentIndex(indexOf("first"));
  tree.replace(sample());
  EXPECT_EQ(selected(), "");
  EXPECT_FALSE(view.isExpanded(indexOf("first")));
  model.nodeExpanded(*tree.root());
  EXPECT_TRUE(view.isExpanded(indexOf("root")));
  tree.setText(*tree.root(), "renamed");
  EXPECT_EQ(model.data(model.index(0, 0, {}), Qt::DisplayRole).toString(),
            QStringLiteral("renamed"));
}

TEST(TreeIconPainter, KeyFramesAreReadWhenDrawnAndStandInARedFrame) {
  const test::TemporaryFolder folder;
  QImage blue(352, 288, QImage::Format_RGB32);
  blue.fill(Qt::blue);
  ASSERT_TRUE(blue.save(pathToQString(folder / "key.bmp")));

  TreeIcons icons;
  icons.addKeyFrame("v.xml", {folder / "key.bmp", 50, 67});
  icons.addKeyFrame("none.xml", {});
  TreeIconPainter painter(icons);
  const QSize size = TreeIconPainter::iconSize();
  const QImage drawn = painter.icon("v.xml").pixmap(size).toImage();
  ASSERT_EQ(drawn.size(), size);
  EXPECT_EQ(drawn.pixelColor(16, 12), QColor(Qt::blue));
  EXPECT_GT(drawn.pixelColor(1, 12).red(), 200);

  // Kept until it is told that the file may have changed.
  folder.write("key.bmp", "no picture any more");
  EXPECT_EQ(painter.icon("v.xml").pixmap(size).toImage(), drawn);
  painter.forget();
  const QImage withoutPicture = painter.icon("none.xml").pixmap(size).toImage();
  EXPECT_EQ(painter.icon("v.xml").pixmap(size).toImage(), withoutPicture);
  EXPECT_GT(withoutPicture.pixelColor(1, 12).red(), 200);
  EXPECT_FALSE(painter.icon("Storage").isNull());
}

}  // namespace
}  // namespace velra
