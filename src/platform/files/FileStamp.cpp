// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/FileStamp.h"

namespace velra {

FileStamp stampOf(const struct stat& status) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {static_cast<std::uint64_t>(status.st_size),
          status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec, status.st_dev,
          status.st_ino, true};
}

FileStamp fileStamp(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 ? stampOf(status) : FileStamp();
}

}  // namespace velra
