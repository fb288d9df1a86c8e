// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {

/// The paths of many files in one row of the store: as many rows as files would cost a tenth of a
/// whole save, and the folder is more than half of most paths.
struct PathRow {
  std::string folder;  // of the first one
  std::string paths;   // a zero byte behind each; those in the folder without it

  void add(const std::string& path);
  /// All of them, whole, in the order in which they were added.
  std::vector<std::string> list() const;
};

}  // namespace velra
