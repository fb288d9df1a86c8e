// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>

namespace velra {

/// What tells one state of a file from another, and from other files.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t modified = 0;  // nanoseconds
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  bool exists = false;

  bool operator==(const FileStamp&) const = default;
};
FileStamp fileStamp(const std::string& path);
FileStamp stampOf(const struct stat& status);

}  // namespace velra
