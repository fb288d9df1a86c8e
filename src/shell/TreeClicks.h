// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/MainWindow.h"
#include "shell/Tree.h"

namespace velra {

class ApplicationModule;
class MainMenus;
class MainTrees;
class MainWindowFace;

/// The mouse buttons of a press on a tree; the numbers are those of `iMainButton`.
enum MouseButton : int { kNoButton = -1, kLeftButton = 1, kRightButton = 2 };

/// The mouse and the keyboard on the two trees: which node the commands are for.
class TreeClicks {
 public:
  TreeClicks(ApplicationModule& app, MainWindowFace& face, MainTrees& trees, MainMenus& menus)
      : app_(app), face_(face), trees_(trees), menus_(menus) {}

  /// A press of a button on a tree, before the click on a node that it may become.
  void treeMouseDown(TreeId tree, MouseButton button);
  /// A node was clicked, or became the current one by the keyboard (then as by the left button).
  void nodeClicked(TreeId tree, TreeNode& node);
  /// The keyboard came to a tree: the commands of the Edit menu are for its selected node now.
  void treeEntered(TreeId tree);
  /// Shows the document, with its node as if it had been clicked: the keyboard begins there.
  void ShowAVDocTitle();

  /// The selected node of the tree that was clicked or entered last; null for none.
  TreeNode* selectedNode() const;

 private:
  void leftClick(TreeId tree, const ObjectRef& object);

  ApplicationModule& app_;
  MainWindowFace& face_;
  MainTrees& trees_;
  MainMenus& menus_;
  int iMainButton_ = kNoButton;
  int iExprButton_ = kNoButton;
  bool bFromMainTree_ = false;
};

}  // namespace velra
