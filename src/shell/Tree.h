// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "protocol/DescribedObject.h"
#include "shell/TreeIcons.h"

namespace velra {

/// A node of one of the two trees. It carries its object, so that commands need no look-up.
struct TreeNode {
  std::string Text;
  IconRef Image;
  IconRef SelectedImage;  // while the node is the current one
  ObjectRef Tag;
  std::uint64_t shownState = 0;  // state number of the object when it was shown here; 0: unknown
  TreeNode* Parent = nullptr;
  std::size_t row = 0;  // place among the parent's children, from 0
  std::vector<std::unique_ptr<TreeNode>> children;
};

/// Told of the changes of a tree; the view stands behind it.
class TreeWatcher {
 public:
  virtual ~TreeWatcher() = default;
  /// Between these two calls all nodes of the tree may go and come; no pointer to a node survives.
  virtual void treeAboutToReset() = 0;
  virtual void treeReset() = 0;
  virtual void nodeTextChanged(TreeNode& node) = 0;
  virtual void nodeExpanded(TreeNode& node) = 0;
  virtual void nodeMadeCurrent(TreeNode& node) = 0;
};

/// Ordered nodes under at most one root, without pixels.
class Tree {
 public:
  /// Null ends the watching.
  void setWatcher(TreeWatcher* watcher) { watcher_ = watcher; }

  TreeNode* root() const { return root_.get(); }

  /// The current node; null for none. A reset takes it back.
  TreeNode* selected() const { return selected_; }
  void select(TreeNode* node) { selected_ = node; }
  /// Makes the object's first node the current one, in the view too.
  void makeCurrent(const DescribedObject& object);

  void clear() { take(); }

  /// Empties the tree and hands its nodes over; null when it was empty.
  std::unique_ptr<TreeNode> take();

  /// Replaces the whole tree at once: the view hears of it before and after.
  void replace(std::unique_ptr<TreeNode> root);

  void setText(TreeNode& node, const std::string& text);

  /// Opens all nodes down to the object's first one, and that one too.
  void ExpandToObject(const DescribedObject& object);

  /// Walks all nodes, parents first, until the visitor returns false.
  void walk(const std::function<bool(TreeNode&)>& visit) const;

  TreeNode* find(const DescribedObject& object) const;

 private:
  TreeWatcher* watcher_ = nullptr;
  std::unique_ptr<TreeNode> root_;
  TreeNode* selected_ = nullptr;
};

/// Appends a child and returns it.
TreeNode& addNode(TreeNode& parent, std::unique_ptr<TreeNode> node);

}  // namespace velra
