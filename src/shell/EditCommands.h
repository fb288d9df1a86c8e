// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "protocol/MainWindow.h"
#include "shell/Tree.h"

namespace velra {

class ApplicationModule;
class MainTrees;
class TreeClicks;

/// The Edit menu of the main window and the Delete key on its trees.
class EditCommands {
 public:
  EditCommands(ApplicationModule& app, FormOwner& window, MainTrees& trees,
               const TreeClicks& clicks);

  void mnuEditMetadata();
  void mnuEditAttributes();
  void mnuAddChild();
  void AddMainExpr(ObjectKind kind);
  /// Appends a movie to a Media as its next Storage, by the rules of the command.
  void appendStorage(const ObjectRef& media, const std::string& movie);
  /// The release of the Delete key on a tree.
  void DeleteNode(TreeId tree);

 private:
  /// What the first two commands are for; null for nothing.
  ObjectRef selectedObject() const;
  std::string askNewChild(const DescribedObject& parent);
  std::string askMovie();
  void append(const ObjectRef& object, const std::string& answer);
  void showTreesWithout(TreeId tree, bool wasVersion);

  ApplicationModule& app_;
  FormOwner& window_;
  MainTrees& trees_;
  const TreeClicks& clicks_;
  Tree& mainTree_;
  Tree& exprTree_;
};

}  // namespace velra
