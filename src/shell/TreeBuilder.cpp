// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TreeBuilder.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/RunTimeError.h"
#include "objects/Version.h"
#include "protocol/Expression.h"
#include "shell/TreeIcons.h"

namespace velra {

namespace {

void show(TreeNode& node, const ObjectRef& object, const IconRef& image,
          const IconRef& selectedImage) {
  node.Text = object->strTitle();
  node.Image = image;
  node.SelectedImage = selectedImage;
  node.Tag = object;
  node.shownState = object->stateNumber();
}

std::unique_ptr<TreeNode> makeNode(const ObjectRef& object, const std::string& image,
                                   const std::string& selectedImage) {
  auto node = std::make_unique<TreeNode>();
  show(*node, object, TreeIcons::named(image), TreeIcons::named(selectedImage));
  return node;
}

// An object that was not written to since stands in its node as it would be shown anew.
bool shows(const TreeNode& node, const DescribedObject& object) {
  return node.shownState != 0 && node.shownState == object.stateNumber() && node.Image->listed;
}

constexpr std::size_t kNodesAhead = 16;

// Nodes keep their order but for a few that came and a few that went; what stands further off is
// not looked for.
constexpr std::size_t kLookAhead = 32;

// Gives the node a child for each of the objects, without a text yet. A child that stands for one
// stays.
void arrangeChildren(TreeNode& node, const ExpressionList& objects) {
  const auto standsFor = [](const std::unique_ptr<TreeNode>& child, const ExpressionRef& object) {
    return child->Tag == object;
  };
  if (std::equal(node.children.begin(), node.children.end(), objects.begin(), objects.end(),
                 standsFor)) {
    return;
  }
  auto former = std::exchange(node.children, {});
  node.children.reserve(objects.size());
  auto next = former.begin();
  for (const ExpressionRef& object : objects) {
    const auto end = next + std::min<std::ptrdiff_t>(kLookAhead, former.end() - next);
    const auto at = std::find_if(next, end, [&](const auto& it) { return standsFor(it, object); });
    addNode(node, at == end ? std::make_unique<TreeNode>() : std::move(*at));
    if (at != end) next = at + 1;
  }
}

std::pair<const char*, const char*> imagesBelow(ObjectKind parent) {
  if (parent == ObjectKind::AVDocument) return {"Version", "Version"};
  if (parent == ObjectKind::Version) return {"Media", "Media"};
  return {"Storage", "ItemSel"};
}

void AddMainChildren(TreeNode& node) {
  const ObjectKind kind = node.Tag->kind();
  if (kind == ObjectKind::Storage) return;
  const auto [image, selectedImage] = imagesBelow(kind);
  for (const ObjectRef& child : node.Tag->colChilds()) {
    AddMainChildren(addNode(node, makeNode(child, image, selectedImage)));
  }
}

// All that another member is followed by, sorted.
std::vector<const Expression*> followersAmong(const ExpressionList& members) {
  std::vector<const Expression*> followers;
  followers.reserve(members.size());
  for (const ExpressionRef& member : members) {
    const auto next = member->objFollowedBy();
    if (next && next != member) followers.push_back(next.get());
  }
  std::sort(followers.begin(), followers.end());
  return followers;
}

// From the head on, to the end or to where the chain runs into itself.
ExpressionList chainFrom(const ExpressionRef& head, std::size_t members) {
  ExpressionList chain;
  chain.reserve(members);
  ExpressionRef at = head;
  for (; at && chain.size() < members; at = at->objFollowedBy()) chain.push_back(at);
  if (!at) return chain;
  // Longer than its members are many: only such a one may have no end.
  chain.clear();
  std::unordered_set<const Expression*> seen;
  for (at = head; at && seen.insert(at.get()).second; at = at->objFollowedBy()) {
    chain.push_back(at);
  }
  return chain;
}

// The members in the order of the chain, from the first that no other member is followed by.
ExpressionList chainOf(const ExpressionList& members) {
  if (members.empty()) return {};  // as most are: nothing is to be sorted
  const std::vector<const Expression*> followers = followersAmong(members);
  for (const ExpressionRef& member : members) {
    if (!std::binary_search(followers.begin(), followers.end(), member.get())) {
      return chainFrom(member, members.size());
    }
  }
  return {};
}

void showSegment(TreeNode& node, const ExpressionRef& segment, const TreeIcons& icons) {
  if (shows(node, *segment)) {
    if (node.Tag.use_count() == 0) node.Tag = segment;  // it was let go
    return;
  }
  const bool ofVideo = segment->kind() == ObjectKind::Video;
  const IconRef icon = ofVideo ? icons.iconOf(*segment) : TreeIcons::named(segment->className());
  if (!icon) raise(kInvalidArgument, segment->strGUID());
  show(node, segment, icon, icon);
}

void SetSubExpressions(TreeNode& node, const Expression& expression, const TreeIcons& icons) {
  const ExpressionList chain = chainOf(expression.colSubExpressions());
  arrangeChildren(node, chain);
  for (std::size_t i = 0; i < chain.size(); ++i) {
    TreeNode& child = *node.children[i];
    showSegment(child, chain[i], icons);
    SetSubExpressions(child, *chain[i], icons);
  }
}

}  // namespace

// Neither the nodes nor their objects are in a cache, so they are called from the memory ahead: a
// node first, and when it is there the object that it holds.
void LetObjectsGo(TreeNode& node) {
  node.Tag = ObjectRef(ObjectRef(), node.Tag.get());
  const auto& children = node.children;
  for (std::size_t i = 0; i < children.size(); ++i) {
    if (i + kNodesAhead < children.size()) __builtin_prefetch(children[i + kNodesAhead].get());
    const std::size_t soon = i + kNodesAhead / 2;
    if (soon < children.size()) __builtin_prefetch(children[soon]->Tag.get(), 1);
    LetObjectsGo(*children[i]);
  }
}

std::unique_ptr<TreeNode> BuildMainTree(const ObjectRef& document) {
  auto root = makeNode(document, "AVDocument", "AVDocument");
  AddMainChildren(*root);
  return root;
}

std::unique_ptr<TreeNode> BuildExprTree(const std::shared_ptr<Version>& version,
                                        const TreeIcons& icons, std::unique_ptr<TreeNode> former) {
  auto root = former ? std::move(former) : std::make_unique<TreeNode>();
  const IconRef versionIcon = TreeIcons::named("Version");
  show(*root, version, versionIcon, versionIcon);
  ExpressionList mains{version->vdMainVideo(), version->auMainAudio(), version->trMainTranscript()};
  std::erase(mains, nullptr);
  arrangeChildren(*root, mains);
  for (std::size_t i = 0; i < mains.size(); ++i) {
    const IconRef icon = TreeIcons::named(mains[i]->className());
    show(*root->children[i], mains[i], icon, icon);
    SetSubExpressions(*root->children[i], *mains[i], icons);
  }
  return root;
}

}  // namespace velra
