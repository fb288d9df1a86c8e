// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <unordered_map>

#include "values/Picture.h"

namespace velra {

/// The image list of both trees: named icons that are always there, and one icon for each key
/// frame, under the identifier of its video. A key frame's icon is the picture inside a red frame;
/// an empty picture stands for the icon "Video" inside the frame.
class TreeIcons {
 public:
  /// True for a named icon or a key frame's.
  bool holds(const std::string& key) const;

  /// Null for a named icon or an unknown key.
  const Picture* keyFrame(const std::string& key) const;

  void addKeyFrame(const std::string& key, const Picture& picture);
  void remove(const std::string& key);
  void removeKeyFrames();

 private:
  std::unordered_map<std::string, Picture> keyFrames_;
};

}  // namespace velra
