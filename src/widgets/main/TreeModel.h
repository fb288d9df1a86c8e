// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <string>

#include "shell/Tree.h"

namespace velra {

/// Shows the nodes of a tree to a view, without an item object for each node. The icon of the
/// selected node is its selected image.
class TreeModel : public QAbstractItemModel, public TreeWatcher {
  Q_OBJECT

 public:
  using IconOfKey = std::function<QIcon(const std::string& key)>;

  /// The tree outlives the model.
  TreeModel(Tree& tree, IconOfKey iconOf, QObject* parent);
  ~TreeModel() override;
  TreeModel(const TreeModel&) = delete;
  TreeModel& operator=(const TreeModel&) = delete;

  Tree& tree() { return tree_; }
  TreeNode* node(const QModelIndex& index) const;
  QModelIndex indexOf(TreeNode& node) const;

  /// Makes the node the tree's selected one; null for none.
  void select(TreeNode* node);

  QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  bool hasChildren(const QModelIndex& parent) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  void treeAboutToReset() override;
  void treeReset() override;
  void nodeTextChanged(TreeNode& node) override;
  void nodeExpanded(TreeNode& node) override;
  void nodeMadeCurrent(TreeNode& node) override;

 Q_SIGNALS:
  void expandRequested(const QModelIndex& index);
  void currentRequested(const QModelIndex& index);

 private:
  Tree& tree_;
  IconOfKey iconOf_;
};

}  // namespace velra
