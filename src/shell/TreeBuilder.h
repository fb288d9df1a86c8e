// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "protocol/DescribedObject.h"
#include "shell/Tree.h"

namespace velra {

class TreeIcons;
class Version;

/// The left tree: the document, its Versions, their Media and Storages.
std::unique_ptr<TreeNode> BuildMainTree(const ObjectRef& document);

/// The right tree: a Version, its main expressions and their segments in the order of time. The
/// icon of each segment must be in the list: kInvalidArgument. The nodes of a former tree are used
/// again where they stand for the same objects, which is a matter of time alone: the tree is the
/// same as without them. They must have let their objects go if one of these has been removed.
std::unique_ptr<TreeNode> BuildExprTree(const std::shared_ptr<Version>& version,
                                        const TreeIcons& icons,
                                        std::unique_ptr<TreeNode> former = nullptr);

/// For nodes that stand in no tree any more: an object that was removed must not live on in them,
/// since a damaged chain would still lead to it. What a node stood for is known by its place in
/// memory alone from here on.
void LetObjectsGo(TreeNode& node);

}  // namespace velra
