// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TreeIcons.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace velra {

namespace {

constexpr std::array<std::string_view, 15> kNamedIcons = {
    "AVDocument",  "Version",   "ItemSel",     "TranscriptOpen", "Audio",
    "Expression",  "Video",     "VideoClosed", "Media",          "VideoOpen",
    "AudioClosed", "AudioOpen", "Storage",     "Transcript",     "TranscriptClosed"};

}  // namespace

bool TreeIcons::holds(const std::string& key) const {
  return std::find(kNamedIcons.begin(), kNamedIcons.end(), key) != kNamedIcons.end() ||
         keyFrames_.contains(key);
}

const Picture* TreeIcons::keyFrame(const std::string& key) const {
  const auto found = keyFrames_.find(key);
  return found == keyFrames_.end() ? nullptr : &found->second;
}

void TreeIcons::addKeyFrame(const std::string& key, const Picture& picture) {
  keyFrames_.insert_or_assign(key, picture);
}

void TreeIcons::remove(const std::string& key) {
  keyFrames_.erase(key);
}

void TreeIcons::removeKeyFrames() {
  keyFrames_.clear();
}

}  // namespace velra
