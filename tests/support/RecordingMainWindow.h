#pragma once

#include <string>
#include <utility>
#include <vector>

#include "protocol/Expression.h"
#include "protocol/MainWindow.h"

namespace velra::test {

/// Notes what the objects tell the main window.
class RecordingMainWindow : public MainWindow {
 public:
  std::vector<std::string> statusTexts;
  std::vector<std::string> removedIcons;
  std::vector<std::string> addedIcons;  // identifiers of the videos
  std::vector<std::string> titles;      // that nodes were given

  std::string strStatusBarText() const override {
    return statusTexts.empty() ? std::string() : statusTexts.back();
  }
  void setStrStatusBarText(const std::string& text) override { statusTexts.push_back(text); }
  void UpdateNodeTitle(const DescribedObject& object) override {
    titles.push_back(object.strTitle());
  }
  void ResetTree(TreeId, const std::shared_ptr<DescribedObject>&) override {}
  void RemoveIcon(const std::string& key) override { removedIcons.push_back(key); }
  void AddSmallKeyFrame(const Expression& video) override { addedIcons.push_back(video.strGUID()); }
  void UpdateSmallKeyFrames() override {}

  std::vector<std::string> takeStatusTexts() { return std::exchange(statusTexts, {}); }
};

}  // namespace velra::test
