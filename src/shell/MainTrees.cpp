// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MainTrees.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/Version.h"
#include "protocol/OpenDocument.h"
#include "protocol/VideoExpression.h"
#include "shell/MainWindowFace.h"
#include "shell/TreeBuilder.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// Objects that are looked at in a millisecond or less.
constexpr std::uint64_t kIconGroup = 512;

}  // namespace

void MainTrees::clear() {
  emptyTree(TreeId::tvwMainTree);
  emptyTree(TreeId::tvwExpression);
}

void MainTrees::emptyTree(TreeId id) {
  std::unique_ptr<TreeNode> nodes = tree(id).take();
  if (!nodes) return;
  LetObjectsGo(*nodes);
  app_.lateRelease.take(std::move(nodes));
}

void MainTrees::showDocument() {
  tvwMainTree_.clear();
  if (!app_.gAVDoc) raise(kNoObject);
  tvwMainTree_.replace(BuildMainTree(app_.gAVDoc));
}

void MainTrees::showVersion(const ObjectRef& version, std::unique_ptr<TreeNode> former) {
  const auto object = as<Version>(version);
  if (!object) raise(kTypeMismatch);
  const std::uint64_t shown = std::exchange(departuresShown_, departures());
  if (former && shown != departuresShown_) LetObjectsGo(*former);
  tvwExpression_.replace(BuildExprTree(object, icons_, std::move(former)));
}

std::uint64_t MainTrees::departures() const {
  return app_.gAVDoc ? app_.gAVDoc->collObjects().departures() : 0;
}

void MainTrees::ResetTree(TreeId id, const ObjectRef& version) {
  if (id == TreeId::tvwExpression && version) return showVersion(version, tree(id).take());
  emptyTree(id);
  if (id == TreeId::tvwMainTree) showDocument();
}

void MainTrees::UpdateNodeTitle(const DescribedObject& object) {
  const std::string title = object.strTitle();
  tvwMainTree_.walk([&](TreeNode& node) {
    if (node.Tag.get() == &object) tvwMainTree_.setText(node, title);
    return true;
  });
  if (TreeNode* node = tvwExpression_.find(object)) tvwExpression_.setText(*node, title);
}

void MainTrees::RemoveIcon(const std::string& key) {
  icons_.remove(key);
  face_.iconsChanged();
}

void MainTrees::addIcon(const VideoExpression& video) {
  const std::uint64_t state = video.stateNumber();
  if (icons_.hasKeyFrame(state, video.picKeyFrameSmall())) return;
  icons_.addKeyFrame(video.strGUID(), video.picKeyFrameSmall(), state);
}

void MainTrees::AddSmallKeyFrame(const VideoExpression& video) {
  addIcon(video);
  face_.iconsChanged();
}

// A main Video has no key frame and keeps its plain icon.
void MainTrees::AddAllSmallKeyFrames() {
  if (!app_.gAVDoc) return;
  for (const auto& [number, object] : app_.gAVDoc->collObjects().sequence()) {
    if (number % kIconGroup == 0) app_.gMainForm->workWaits();
    const auto* video = as<VideoExpression>(object.get());
    if (video && video->objMainExpr()) addIcon(*video);
  }
  face_.iconsChanged();
}

// As if all were removed and added: most are right as they are.
void MainTrees::UpdateSmallKeyFrames() {
  const TreeIcons::Renewal renewal(icons_);
  AddAllSmallKeyFrames();
}

void MainTrees::ResetListImageExpression() {
  app_.lateRelease.take(icons_.takeKeyFrames());
  face_.iconsChanged();
}

}  // namespace velra
