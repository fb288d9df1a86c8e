// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/HiddenFolder.h"

#include <cstdio>
#include <string_view>

#include "platform/files/Files.h"
#include "store/DataFolder.h"

namespace velra {

std::string HiddenFolder::pathBeside(const std::string& folder) {
  const auto name = folder.rfind('/', folder.size() - 2) + 1;
  const std::string_view own = std::string_view(folder).substr(name, folder.size() - name - 1);
  return folder.substr(0, name) + '.' + std::string(own) + '.' + strMakeGUIDText() + '/';
}

void HiddenFolder::make() {
  made_ = !path_.empty() && makeFolder(path_).empty();
}

std::string HiddenFolder::placeOf(const std::string& path) const {
  return made_ && path.starts_with(folder_) ? path_ + path.substr(folder_.size()) : path;
}

std::string HiddenFolder::strTold(std::string text) const {
  const auto at = made_ ? text.find(path_) : std::string::npos;
  return at == std::string::npos ? text : text.replace(at, path_.size(), folder_);
}

// The system puts a folder in the place of an empty one in a single step; some servers want the
// place to be free.
bool HiddenFolder::bTakesPlace() {
  const auto renamed = [this] { return std::rename(path_.c_str(), folder_.c_str()) == 0; };
  if (made_ && !renamed()) {
    removeFolderIfEmpty(folder_);
    if (!renamed()) {
      makeFolder(folder_);
      return false;
    }
  }
  made_ = false;
  return true;
}

void HiddenFolder::remove() {
  if (made_) removeFolderIfEmpty(path_);
  made_ = made_ && bFolderExists(path_);
}

}  // namespace velra
