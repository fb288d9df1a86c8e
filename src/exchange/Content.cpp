// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/Content.h"

#include <algorithm>

#include "base/Paths.h"

namespace velra {

const ContentField* ContentObject::field(const std::string& name) const {
  const auto at = std::find_if(fields.begin(), fields.end(), [&](const ContentField& field) {
    return field.assigned && field.name == name;
  });
  return at == fields.end() ? nullptr : &*at;
}

std::string ContentObject::text(const std::string& name) const {
  const ContentField* found = field(name);
  return found && !found->texts.empty() ? found->texts.front() : std::string();
}

std::size_t Content::numberOf(const ContentObject& object) const {
  return static_cast<std::size_t>(&object - objects.data());
}

std::vector<const ContentObject*> Content::below(const ContentObject& object) const {
  std::vector<const ContentObject*> children;
  const std::size_t number = numberOf(object);
  // What is below an object stands in one row behind it.
  for (std::size_t i = number + 1; i < objects.size() && objects[i].parent >= number; ++i) {
    if (objects[i].parent == number) children.push_back(&objects[i]);
  }
  return children;
}

std::string Content::fileOf(const ContentObject& object) const {
  return strAbsolutePath(object.identifier, folderOf(path));
}

}  // namespace velra
