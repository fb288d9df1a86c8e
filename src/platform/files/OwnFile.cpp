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

bool OwnFiles::isInside(const std::string& path) const {
  const std::string around = folderOf(path);
  if (around == folder_) return true;
  struct stat its {};
  struct stat own {};
  return ::stat(around.c_str(), &its) == 0 && ::stat(folder_.c_str(), &own) == 0 &&
         its.st_dev == own.st_dev && its.st_ino == own.st_ino;
}

FileStamp OwnFiles::stampOfOwn(const std::string& path) const {
  const auto slash = path.rfind('/');
  if (!std::string_view(path).substr(slash + 1).starts_with(prefix_)) return {};
  struct stat file {};
  const bool regular = ::lstat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode);
  return regular && isInside(path) ? stampOf(file) : FileStamp();
}

bool OwnFiles::holds(const std::string& path) const {
  struct stat file {};
  const bool link = ::lstat(path.c_str(), &file) == 0 && S_ISLNK(file.st_mode);
  return !link && isInside(path);
}

}  // namespace velra
