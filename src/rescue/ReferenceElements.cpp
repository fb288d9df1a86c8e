// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/ReferenceElements.h"

#include <set>
#include <string>

#include "base/Text.h"

namespace velra {

bool holdsIdentifier(std::string_view element) {
  static const std::set<std::string> kSingle = {"hasaudio", "hasvideotranscript",
                                                "hasaudiotranscript"};
  const std::string name = asciiLower(element);
  return name.ends_with("guid") || name.starts_with("partof") || name.starts_with("followedby") ||
         kSingle.contains(name) || holdsKeyFrame(element);
}

bool holdsKeyFrame(std::string_view element) {
  return asciiLower(element) == "keyframe";
}

bool holdsMoviePath(std::string_view element) {
  return element == "Collocation" || element == "Time";
}

}  // namespace velra
