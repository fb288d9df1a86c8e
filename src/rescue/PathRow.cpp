// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/PathRow.h"

#include "base/Paths.h"
#include "base/Text.h"

namespace velra {

void PathRow::add(const std::string& path) {
  if (paths.empty()) folder = folderOf(path);
  paths.append(path, path.starts_with(folder) ? folder.size() : 0) += '\0';
}

std::vector<std::string> PathRow::list() const {
  std::vector<std::string> found = split(paths, '\0');
  found.pop_back();  // behind the last zero byte
  for (std::string& path : found) {
    if (!path.starts_with('/')) path.insert(0, folder);
  }
  return found;
}

}  // namespace velra
