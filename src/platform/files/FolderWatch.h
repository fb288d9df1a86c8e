// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "platform/files/FileHandle.h"

namespace velra {

/// Has the system tell which files of a folder come, go or change, so that nobody has to list a
/// folder in order to learn that nothing has happened. Only where the system sees whatever happens:
/// on a file system of this machine. A file that has a name in another folder, too, may change
/// unseen.
class FolderWatch {
 public:
  /// `folder` is absolute, with a separator at its end; it need not be there.
  explicit FolderWatch(std::string folder);

  /// The names that something has happened to since the last call, whatever it was. Nothing when
  /// that cannot be told: then anything may have happened, until a moment within this call.
  std::optional<std::set<std::string>> take();

 private:
  struct Place {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    bool operator==(const Place&) const = default;
  };

  void begin();
  static std::optional<Place> placeOf(const std::string& folder);

  const std::string folder_;
  std::optional<FileHandle> events_;  // while what happens is told
  Place watched_;
};

}  // namespace velra
