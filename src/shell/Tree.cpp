// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Tree.h"

#include <utility>

namespace velra {

namespace {

// The node after this one when parents come first; null at the end.
TreeNode* nextNode(TreeNode* node) {
  if (!node->children.empty()) return node->children.front().get();
  for (; node->Parent; node = node->Parent) {
    const auto& siblings = node->Parent->children;
    if (node->row + 1 < siblings.size()) return siblings[node->row + 1].get();
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<TreeNode> Tree::take() {
  if (!root_) return nullptr;
  if (watcher_) watcher_->treeAboutToReset();
  selected_ = nullptr;
  std::unique_ptr<TreeNode> taken = std::exchange(root_, nullptr);
  if (watcher_) watcher_->treeReset();
  return taken;
}

void Tree::replace(std::unique_ptr<TreeNode> root) {
  if (watcher_) watcher_->treeAboutToReset();
  selected_ = nullptr;
  root_ = std::move(root);
  if (watcher_) watcher_->treeReset();
}

void Tree::setText(TreeNode& node, const std::string& text) {
  if (node.Text == text) return;
  node.Text = text;
  if (watcher_) watcher_->nodeTextChanged(node);
}

void Tree::ExpandToObject(const DescribedObject& object) {
  if (!watcher_) return;
  for (TreeNode* node = find(object); node; node = node->Parent) watcher_->nodeExpanded(*node);
}

void Tree::makeCurrent(const DescribedObject& object) {
  TreeNode* node = find(object);
  if (!node) return;
  selected_ = node;
  if (watcher_) watcher_->nodeMadeCurrent(*node);
}

void Tree::walk(const std::function<bool(TreeNode&)>& visit) const {
  for (TreeNode* node = root_.get(); node; node = nextNode(node)) {
    if (!visit(*node)) return;
  }
}

TreeNode* Tree::find(const DescribedObject& object) const {
  TreeNode* found = nullptr;
  walk([&](TreeNode& node) {
    if (node.Tag.get() == &object) found = &node;
    return !found;
  });
  return found;
}

TreeNode& addNode(TreeNode& parent, std::unique_ptr<TreeNode> node) {
  node->Parent = &parent;
  node->row = parent.children.size();
  return *parent.children.emplace_back(std::move(node));
}

}  // namespace velra
