// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeView>

#include "shell/frmMain.h"

namespace velra {

class TreeModel;

/// One of the two trees of the main window. It tells of presses, clicks and keys, and keeps the
/// selected node of the tree the one that is highlighted.
class NodeTreeView : public QTreeView {
  Q_OBJECT

 public:
  /// The model is not owned.
  NodeTreeView(TreeModel& model, QWidget* parent);

  /// The node at a place of the screen; null for none.
  TreeNode* nodeAt(const QPoint& globalPosition) const;

  /// Where a menu for the last click or the Menu key opens, in global coordinates.
  QPoint menuPosition() const { return menuPosition_; }

 Q_SIGNALS:
  /// A press of a button, before the click on a node that it may become. The keyboard presses too:
  /// the left button to make a node the current one, the right one for the menu.
  void pressed(velra::MouseButton button);
  void nodeClicked(velra::TreeNode& node);
  /// The Tab key came to a tree that has a selected node.
  void entered();
  /// Return or F2 on the tree.
  void formAsked();
  void deleteReleased();

 protected:
  bool event(QEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& options,
               const QModelIndex& index) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  void click(const QModelIndex& index, MouseButton button);
  void expandBelow(const QModelIndex& index);
  bool isOnNode(const QPoint& position) const;
  void paintFrame();

  TreeModel& model_;
  QPoint menuPosition_;
};

}  // namespace velra
