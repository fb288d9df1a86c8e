// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TreeIcons.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "protocol/DescribedObject.h"

namespace velra {

namespace {

const std::array<TreeIcon, 15> kNamedIcons = {{{"AVDocument", {}},
                                               {"Version", {}},
                                               {"ItemSel", {}},
                                               {"TranscriptOpen", {}},
                                               {"Audio", {}},
                                               {"Expression", {}},
                                               {"Video", {}},
                                               {"VideoClosed", {}},
                                               {"Media", {}},
                                               {"VideoOpen", {}},
                                               {"AudioClosed", {}},
                                               {"AudioOpen", {}},
                                               {"Storage", {}},
                                               {"Transcript", {}},
                                               {"TranscriptClosed", {}}}};

}  // namespace

IconRef TreeIcons::named(std::string_view name) {
  const auto* const at = std::find_if(kNamedIcons.begin(), kNamedIcons.end(),
                                      [name](const TreeIcon& icon) { return icon.key == name; });
  return at == kNamedIcons.end() ? nullptr : IconRef(IconRef(), at);
}

bool TreeIcons::holds(const std::string& key) const {
  return named(key) || keyFrames_.byKey.contains(key);
}

const Picture* TreeIcons::keyFrame(const std::string& key) const {
  const auto found = keyFrames_.byKey.find(key);
  return found == keyFrames_.byKey.end() ? nullptr : &found->second.icon->picture;
}

IconRef TreeIcons::iconOf(const DescribedObject& object) const {
  const auto known = keyFrames_.byState.find(object.stateNumber());
  if (known != keyFrames_.byState.end()) return known->second.icon;
  const std::string key = object.strGUID();
  const auto found = keyFrames_.byKey.find(key);
  return found == keyFrames_.byKey.end() ? named(key) : found->second.icon;
}

void TreeIcons::addKeyFrame(std::string key, Picture picture, std::uint64_t state) {
  remove(key);
  auto icon = std::make_shared<TreeIcon>(TreeIcon{std::move(key), std::move(picture)});
  const std::string_view name = icon->key;
  KeyFrame& kept =
      keyFrames_.byKey.emplace(name, KeyFrame{std::move(icon), state, round_}).first->second;
  if (state != 0) keyFrames_.byState[state] = {kept.icon, &kept};
}

bool TreeIcons::hasKeyFrame(std::uint64_t state, const Picture& picture) {
  const auto known = keyFrames_.byState.find(state);
  if (known == keyFrames_.byState.end() || known->second.icon->picture != picture) return false;
  known->second.frame->round = round_;
  return true;
}

void TreeIcons::removeOld() {
  std::vector<std::string> old;
  for (const auto& [key, frame] : keyFrames_.byKey) {
    if (frame.round != round_) old.emplace_back(key);
  }
  for (const std::string& key : old) remove(key);
}

void TreeIcons::remove(const std::string& key) {
  const auto found = keyFrames_.byKey.find(key);
  if (found == keyFrames_.byKey.end()) return;
  const auto known = keyFrames_.byState.find(found->second.state);
  if (known != keyFrames_.byState.end() && known->second.frame == &found->second)
    keyFrames_.byState.erase(known);
  found->second.icon->listed = false;
  keyFrames_.byKey.erase(found);
}

TreeIcons::KeyFrames TreeIcons::takeKeyFrames() {
  for (const auto& [key, frame] : keyFrames_.byKey) frame.icon->listed = false;
  return std::exchange(keyFrames_, {});
}

}  // namespace velra
