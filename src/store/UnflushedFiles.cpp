// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/UnflushedFiles.h"

#include <utility>

#include "base/Paths.h"
#include "platform/files/Files.h"

namespace velra {

namespace {

// Each of them costs what all together do. On the other hand, to sync the whole file system is to
// wait for what everybody else writes there, which is minutes while a movie is copied.
constexpr std::size_t kFewUnflushed = 4;

}  // namespace

void UnflushedFiles::written(const std::string& path) {
  if (paths_.size() > kFewUnflushed) paths_.pop_back();
  paths_.push_back(path);
}

std::string UnflushedFiles::strFlush() {
  if (paths_.empty()) return {};
  const std::vector<std::string> paths = std::exchange(paths_, {});
  if (std::exchange(made_, false) || paths.size() > kFewUnflushed) {
    return syncFolder(folderOf(paths.back()));  // the others may be of a Save As that failed
  }
  for (const std::string& path : paths) {
    if (std::string failure = syncFile(path); !failure.empty()) return failure;
  }
  return {};
}

}  // namespace velra
