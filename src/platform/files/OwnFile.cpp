// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/OwnFile.h"

#include <sys/stat.h>

#include <string_view>

#include "base/Paths.h"

namespace velra {

OwnFiles::OwnFiles(const std::string& document) {
  std::string around;
  prefix_ = strSplitPath(document, around);
  folder_ = around + prefix_ + "_files/";
  prefix_ += '_';
}

bool OwnFiles::owns(const std::string& path) const {
  const auto slash = path.rfind('/');
  if (!std::string_view(path).substr(slash + 1).starts_with(prefix_)) return false;
  struct stat file {};
  struct stat around {};
  struct stat own {};
  return ::lstat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) &&
         ::stat(folderOf(path).c_str(), &around) == 0 && ::stat(folder_.c_str(), &own) == 0 &&
         around.st_dev == own.st_dev && around.st_ino == own.st_ino;
}

}  // namespace velra
