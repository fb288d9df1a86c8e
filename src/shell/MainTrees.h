// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "protocol/Expression.h"
#include "protocol/MainWindow.h"
#include "shell/Tree.h"
#include "shell/TreeIcons.h"

namespace velra {

class ApplicationModule;
class MainWindowFace;

/// The two trees of the main window with their icons, and what they show of the open document.
class MainTrees {
 public:
  MainTrees(ApplicationModule& app, MainWindowFace& face) : app_(app), face_(face) {}

  Tree& tree(TreeId id) { return id == TreeId::tvwMainTree ? tvwMainTree_ : tvwExpression_; }
  const TreeIcons& icons() const { return icons_; }

  void clear();
  /// The ladder of the open document; kNoObject without one.
  void showDocument();
  /// The expressions of a Version; kTypeMismatch for another object.
  void showVersion(const ObjectRef& version, std::unique_ptr<TreeNode> former = nullptr);
  /// Builds a tree anew; the right one for the given Version, or empty.
  void ResetTree(TreeId id, const ObjectRef& version);
  void UpdateNodeTitle(const DescribedObject& object);

  void RemoveIcon(const std::string& key);
  void AddSmallKeyFrame(const VideoExpression& video);
  /// The icons of all segments of the open document, if there is one.
  void AddAllSmallKeyFrames();
  void ResetListImageExpression();
  void UpdateSmallKeyFrames();

 private:
  void addIcon(const VideoExpression& video);
  void emptyTree(TreeId id);
  std::uint64_t departures() const;

  ApplicationModule& app_;
  MainWindowFace& face_;
  TreeIcons icons_;
  Tree tvwMainTree_;
  Tree tvwExpression_;
  std::uint64_t departuresShown_ = 0;  // an object of this tree has gone only when there are more
};

}  // namespace velra
