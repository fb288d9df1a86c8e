// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <list>
#include <memory>
#include <mutex>

#include "movies/MovieIndex.h"
#include "platform/files/FileStamp.h"

namespace velra {

/// The indexes of the movies whose packets took long to read, so that a still or another opening of
/// the same file need not wait once more. The process has one, since movies are opened from
/// everywhere. From any thread.
class IndexMemory {
 public:
  static IndexMemory& ofProcess();

  /// Null when none is known for this stamp.
  std::shared_ptr<const MovieIndex> find(const FileStamp& stamp);

  /// Keeps the index of a file that had this stamp before it was opened, and forgets that of the
  /// movie that was used longest ago.
  void add(const FileStamp& stamp, const MovieIndex& index);

 private:
  struct Entry {
    FileStamp stamp;
    std::shared_ptr<const MovieIndex> index;
  };

  std::mutex mutex_;  // guards all that follows
  std::list<Entry> entries_;
};

}  // namespace velra
