// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunFolder.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "base/Paths.h"
#include "platform/files/FileHandle.h"

namespace velra::bench {

namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "run-";

// Where the file system does not know the wish, the folders stand where they stand.
void spreadFoldersBelow(const std::string& path) {
  const FileHandle folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  unsigned flags = 0;
  if (!folder || ::ioctl(folder.number(), FS_IOC_GETFLAGS, &flags) != 0) return;
  flags |= FS_TOPDIR_FL;
  ::ioctl(folder.number(), FS_IOC_SETFLAGS, &flags);
}

// A number for each folder, of all parts.
int nextNumber() {
  static int made = 0;
  return ++made;
}

// True for a folder of this run, or of one that has ended.
bool isOver(const std::string& name) {
  constexpr std::string_view kRun = kPrefix;
  if (!name.starts_with(kRun)) return false;
  const int process = std::atoi(name.c_str() + kRun.size());
  return process == ::getpid() || (process > 0 && ::kill(process, 0) != 0);
}

}  // namespace

RunFolder::RunFolder(const std::string& parent)
    : path_(parent + "/" + kPrefix + std::to_string(::getpid()) + "-" +
            std::to_string(nextNumber())),
      before_(currentFolder()) {
  fs::create_directories(path_);
  spreadFoldersBelow(path_);
}

RunFolder::~RunFolder() {
  changeCurrentFolder(before_);
}

void RunFolder::removeAll(const std::string& parent) {
  for (const auto& entry : fs::directory_iterator(parent)) {
    std::error_code failed;  // another run may be at it; what is left goes at the next
    if (isOver(entry.path().filename())) fs::remove_all(entry.path(), failed);
  }
}

std::string RunFolder::make(const std::string& name) {
  // The name decides on the group, so it is another one in each run.
  const std::string folder =
      path_ + "/" + name + " " + std::to_string(::getpid()) + "-" + std::to_string(nextNumber());
  fs::create_directories(folder);
  return folder;
}

}  // namespace velra::bench
