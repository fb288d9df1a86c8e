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

std::unique_ptr<TreeNode> makeNode(const ObjectRef& object, const std::string& image,
                                   const std::string& selectedImage) {
  auto node = std::make_unique<TreeNode>();
  node->Text = object->strTitle();
  node->Image = image;
  node->SelectedImage = selectedImage;
  node->Tag = object;
  return node;
}

std::pair<const char*, const char*> imagesBelow(const std::string& parentClass) {
  if (parentClass == "AVDocument") return {"Version", "Version"};
  if (parentClass == "Version") return {"Media", "Media"};
  return {"Storage", "ItemSel"};
}

void AddMainChildren(TreeNode& node) {
  const std::string& parentClass = node.Tag->className();
  if (parentClass == "Storage") return;
  const auto [image, selectedImage] = imagesBelow(parentClass);
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

// The members in the order of the chain, from the first that no other member is followed by. A
// chain that runs into itself ends where it does.
ExpressionList chainOf(const ExpressionList& members) {
  if (members.empty()) return {};  // as most are: nothing is to be sorted
  const std::vector<const Expression*> followers = followersAmong(members);
  ExpressionList chain;
  std::unordered_set<const Expression*> seen;
  seen.reserve(members.size());
  for (const ExpressionRef& member : members) {
    if (std::binary_search(followers.begin(), followers.end(), member.get())) continue;
    for (ExpressionRef at = member; at && seen.insert(at.get()).second; at = at->objFollowedBy()) {
      chain.push_back(at);
    }
    break;
  }
  return chain;
}

void AddSubExpressions(TreeNode& node, const Expression& expression, const TreeIcons& icons) {
  for (const ExpressionRef& segment : chainOf(expression.colSubExpressions())) {
    const std::string image =
        segment->className() == "Video" ? segment->strGUID() : segment->className();
    if (!icons.holds(image)) raise(kInvalidArgument, image);
    AddSubExpressions(addNode(node, makeNode(segment, image, image)), *segment, icons);
  }
}

void addMainExpression(TreeNode& root, const ExpressionRef& expression, const TreeIcons& icons) {
  if (!expression) return;
  const std::string& image = expression->className();
  AddSubExpressions(addNode(root, makeNode(expression, image, image)), *expression, icons);
}

}  // namespace

std::unique_ptr<TreeNode> BuildMainTree(const ObjectRef& document) {
  auto root = makeNode(document, "AVDocument", "AVDocument");
  AddMainChildren(*root);
  return root;
}

std::unique_ptr<TreeNode> BuildExprTree(const std::shared_ptr<Version>& version,
                                        const TreeIcons& icons) {
  auto root = makeNode(version, "Version", "Version");
  addMainExpression(*root, version->vdMainVideo(), icons);
  addMainExpression(*root, version->auMainAudio(), icons);
  addMainExpression(*root, version->trMainTranscript(), icons);
  return root;
}

}  // namespace velra
