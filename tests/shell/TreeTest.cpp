// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Tree.h"

#include <gtest/gtest.h>

#include "shell/TreeIcons.h"

namespace velra {
namespace {

class Notes : public TreeWatcher {
 public:
  std::string heard;
  void treeAboutToReset() override { heard += "<"; }
  void treeReset() override { heard += ">"; }
  void nodeTextChanged(TreeNode& node) override { heard += "text " + node.Text + ";"; }
  void nodeExpanded(TreeNode& node) override { heard += "open " + node.Text + ";"; }
  void nodeMadeCurrent(TreeNode& node) override { heard += "current " + node.Text + ";"; }
};

std::unique_ptr<TreeNode> node(const std::string& text) {
  auto made = std::make_unique<TreeNode>();
  made->Text = text;
  return made;
}

// root { a { a1, a2 { deep } }, b }
std::unique_ptr<TreeNode> sample() {
  auto root = node("root");
  TreeNode& a = addNode(*root, node("a"));
  addNode(a, node("a1"));
  addNode(addNode(a, node("a2")), node("deep"));
  addNode(*root, node("b"));
  return root;
}

TEST(Tree, WalksParentsFirstUntilTold) {
  Tree tree;
  tree.replace(sample());
  std::string all;
  tree.walk([&](TreeNode& each) {
    all += each.Text + " ";
    return true;
  });
  EXPECT_EQ(all, "root a a1 a2 deep b ");
  int visits = 0;
  tree.walk([&](TreeNode& each) {
    ++visits;
    return each.Text != "a1";
  });
  EXPECT_EQ(visits, 3);
}

TEST(Tree, ResetTakesTheSelectionBackAndIsHeardOnce) {
  Tree tree;
  Notes notes;
  tree.setWatcher(&notes);
  tree.clear();
  EXPECT_EQ(notes.heard, "");
  tree.replace(sample());
  tree.select(tree.root());
  tree.clear();
  EXPECT_EQ(tree.selected(), nullptr);
  EXPECT_EQ(notes.heard, "<><>");
}

TEST(Tree, TellsOfTextsThatReallyChange) {
  Tree tree;
  Notes notes;
  tree.replace(sample());
  tree.setWatcher(&notes);
  tree.setText(*tree.root(), "root");
  tree.setText(*tree.root(), "new");
  EXPECT_EQ(notes.heard, "text new;");
}

TEST(TreeIcons, KeyFramesStandBesideTheNamedIcons) {
  TreeIcons icons;
  icons.addKeyFrame("a.xml", {"/a.bmp", 50, 67});
  icons.addKeyFrame("a.xml", {"/b.bmp", 50, 67});
  icons.addKeyFrame("b.xml", {});
  ASSERT_NE(icons.keyFrame("a.xml"), nullptr);
  EXPECT_EQ(icons.keyFrame("a.xml")->path, "/b.bmp");
  EXPECT_TRUE(icons.holds("b.xml"));
  EXPECT_TRUE(icons.holds("TranscriptClosed"));
  EXPECT_EQ(icons.keyFrame("Video"), nullptr);
  icons.remove("a.xml");
  EXPECT_FALSE(icons.holds("a.xml"));
  icons.takeKeyFrames();
  EXPECT_FALSE(icons.holds("b.xml"));
  EXPECT_TRUE(icons.holds("Video"));
}

}  // namespace
}  // namespace velra
