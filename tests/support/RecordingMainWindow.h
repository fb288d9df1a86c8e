// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "protocol/MainWindow.h"
#include "protocol/VideoExpression.h"

namespace velra::test {

/// Notes what the objects tell the main window.
class RecordingMainWindow : public MainWindow {
 public:
  std::vector<std::string> statusTexts;
  std::vector<std::string> removedIcons;
  std::vector<std::string> titles;  // that nodes were given
  std::vector<std::string> calls;   // of the others, by name

  std::string strStatusBarText() const override {
    return statusTexts.empty() ? std::string() : statusTexts.back();
  }
  void setStrStatusBarText(const std::string& text) override { statusTexts.push_back(text); }
  void UpdateNodeTitle(const DescribedObject& object) override {
    titles.push_back(object.strTitle());
  }
  void ResetTree(TreeId tree, const std::shared_ptr<DescribedObject>&) override {
    calls.emplace_back(tree == TreeId::tvwExpression ? "ResetTree" : "ResetTree left");
  }
  void RemoveIcon(const std::string& key) override { removedIcons.push_back(key); }
  void AddSmallKeyFrame(const VideoExpression& video) override {
    calls.push_back("AddSmallKeyFrame " + video.strTitle());
  }
  void UpdateSmallKeyFrames() override { calls.emplace_back("UpdateSmallKeyFrames"); }

  std::vector<std::string> takeStatusTexts() { return std::exchange(statusTexts, {}); }
};

}  // namespace velra::test
