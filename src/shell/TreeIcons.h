// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tsl/robin_map.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "values/Picture.h"

namespace velra {

class DescribedObject;

/// An icon of the list. Nodes that show it share it, and keep it when the list does not.
struct TreeIcon {
  std::string key;
  Picture picture;     // of a key frame
  bool listed = true;  // false once the list has let it go
};
using IconRef = std::shared_ptr<const TreeIcon>;

/// The image list of both trees: named icons that are always there, and one icon for each key
/// frame, under the identifier of its video. A key frame's icon is the picture inside a red frame;
/// an empty picture stands for the icon "Video" inside the frame.
class TreeIcons {
 public:
  /// True for a named icon or a key frame's.
  bool holds(const std::string& key) const;

  /// Null for a named icon or an unknown key.
  const Picture* keyFrame(const std::string& key) const;

  /// Null when there is none of the name.
  static IconRef named(std::string_view name);

  /// The icon under the object's identifier; null when there is none.
  IconRef iconOf(const DescribedObject& object) const;

  /// The key is the identifier of an object whose fields had this state number; 0 for an unknown
  /// one.
  void addKeyFrame(std::string key, Picture picture, std::uint64_t state = 0);
  /// True when the icon that was added with this state number, which is not 0, has this picture.
  bool hasKeyFrame(std::uint64_t state, const Picture& picture);
  void remove(const std::string& key);

  /// Makes all anew: removes what is neither added nor found by `hasKeyFrame` while it lives.
  class Renewal {
   public:
    explicit Renewal(TreeIcons& icons) : icons_(icons) { ++icons_.round_; }
    ~Renewal() { icons_.removeOld(); }
    Renewal(const Renewal&) = delete;
    Renewal& operator=(const Renewal&) = delete;

   private:
    TreeIcons& icons_;
  };

 private:
  struct KeyFrame {
    std::shared_ptr<TreeIcon> icon;
    std::uint64_t state;
    std::uint64_t round;  // in which it was added or found last
  };
  struct KeyFrames {
    std::unordered_map<std::string_view, KeyFrame> byKey;  // which stands in the icon
    struct OfState {
      IconRef icon;  // here as well, since a way over its key frame is in no cache
      KeyFrame* frame;
    };
    // An object that was not written to since has its icon here, and need not say its identifier.
    // Numbers that follow each other stand beside each other.
    tsl::robin_map<std::uint64_t, OfState> byState;
  };

 public:
  /// Removes all and hands them over, for who gives them back later.
  KeyFrames takeKeyFrames();

 private:
  void removeOld();

  KeyFrames keyFrames_;
  std::uint64_t round_ = 0;
};

}  // namespace velra
