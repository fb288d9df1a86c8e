// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TreeClicks.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "objects/Storage.h"
#include "protocol/OpenDocument.h"
#include "shell/MainMenus.h"
#include "shell/MainTrees.h"
#include "shell/MainWindowFace.h"

namespace velra {

void TreeClicks::treeMouseDown(TreeId id, MouseButton button) {
  (id == TreeId::tvwMainTree ? iMainButton_ : iExprButton_) = button;
}

void TreeClicks::nodeClicked(TreeId id, TreeNode& node) {
  int& pending = id == TreeId::tvwMainTree ? iMainButton_ : iExprButton_;
  const int button = std::exchange(pending, kNoButton);
  trees_.tree(id).select(&node);
  treeEntered(id);
  const ObjectRef object = node.Tag;
  if (button == kRightButton) {
    face_.popUpEditMenu();
  } else {
    leftClick(id, object);
  }
}

void TreeClicks::treeEntered(TreeId id) {
  const TreeNode* node = trees_.tree(id).selected();
  if (!node) return;
  bFromMainTree_ = id == TreeId::tvwMainTree;
  menus_.ContexMenuManager(*node->Tag, bFromMainTree_);
}

void TreeClicks::leftClick(TreeId id, const ObjectRef& object) {
  if (id != TreeId::tvwMainTree) return;
  if (const auto storage = as<Storage>(object)) {
    storage->setBIsSelected(true);
  } else if (object->kind() == ObjectKind::Version) {
    trees_.showVersion(object);
  }
}

void TreeClicks::ShowAVDocTitle() {
  trees_.showDocument();
  Tree& tree = trees_.tree(TreeId::tvwMainTree);
  tree.makeCurrent(*app_.gAVDoc);
  // No click: a button that was pressed beside all nodes is still pending.
  tree.select(tree.root());
  treeEntered(TreeId::tvwMainTree);
}

TreeNode* TreeClicks::selectedNode() const {
  return trees_.tree(bFromMainTree_ ? TreeId::tvwMainTree : TreeId::tvwExpression).selected();
}

}  // namespace velra
