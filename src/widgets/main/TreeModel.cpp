// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/TreeModel.h"

#include <QIcon>
#include <utility>

#include "widgets/QtText.h"

namespace velra {

TreeModel::TreeModel(Tree& tree, IconOfKey iconOf, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree), iconOf_(std::move(iconOf)) {
  tree_.setWatcher(this);
}

TreeModel::~TreeModel() {
  tree_.setWatcher(nullptr);
}

TreeNode* TreeModel::node(const QModelIndex& index) const {
  return index.isValid() ? static_cast<TreeNode*>(index.internalPointer()) : nullptr;
}

QModelIndex TreeModel::indexOf(TreeNode& node) const {
  return createIndex(static_cast<int>(node.row), 0, &node);
}

void TreeModel::select(TreeNode* node) {
  TreeNode* before = tree_.selected();
  if (before == node) return;
  tree_.select(node);
  for (TreeNode* changed : {before, node}) {
    if (changed) Q_EMIT dataChanged(indexOf(*changed), indexOf(*changed), {Qt::DecorationRole});
  }
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column != 0) return {};
  const auto place = static_cast<std::size_t>(row);
  if (const TreeNode* above = node(parent)) {
    if (place >= above->children.size()) return {};
    return createIndex(row, 0, above->children[place].get());
  }
  return place == 0 && tree_.root() ? indexOf(*tree_.root()) : QModelIndex();
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
  const TreeNode* below = node(child);
  return below && below->Parent ? indexOf(*below->Parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  if (const TreeNode* above = node(parent)) return static_cast<int>(above->children.size());
  return tree_.root() ? 1 : 0;
}

int TreeModel::columnCount(const QModelIndex&) const {
  return 1;
}

bool TreeModel::hasChildren(const QModelIndex& parent) const {
  return rowCount(parent) > 0;
}

// The view asks it of each row that it lays out, and nothing more of one that says so.
Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
  return node(index) && !hasChildren(index) ? flags | Qt::ItemNeverHasChildren : flags;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  const TreeNode* shown = node(index);
  if (!shown) return {};
  switch (role) {
    case Qt::DisplayRole:
      return lineText(shown->Text);
    case Qt::DecorationRole: {
      const IconRef& image = shown == tree_.selected() ? shown->SelectedImage : shown->Image;
      return image ? iconOf_(image->key) : QVariant();
    }
    case Qt::AccessibleDescriptionRole:  // what else only the icon would say
      return shown->Tag ? toQString(shown->Tag->className()) : QString();
    default:
      return {};
  }
}

void TreeModel::treeAboutToReset() {
  beginResetModel();
}

void TreeModel::treeReset() {
  endResetModel();
}

void TreeModel::nodeTextChanged(TreeNode& node) {
  Q_EMIT dataChanged(indexOf(node), indexOf(node), {Qt::DisplayRole});
}

void TreeModel::nodeExpanded(TreeNode& node) {
  Q_EMIT expandRequested(indexOf(node));
}

void TreeModel::nodeMadeCurrent(TreeNode& node) {
  Q_EMIT currentRequested(indexOf(node));
}

}  // namespace velra
