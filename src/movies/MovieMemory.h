// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <list>
#include <memory>
#include <mutex>

#include "movies/MovieIndex.h"
#include "movies/PictureReader.h"
#include "platform/files/FileStamp.h"

namespace velra {

/// What the opening of a movie found out by reading and decoding.
struct KnownMovie {
  FirstPicture first;
  MovieIndex index;
};

/// What is known of the movies that were opened last, so that a still or another opening of the
/// same file need not wait for it once more. The process has one, since movies are opened from
/// everywhere. From any thread.
class MovieMemory {
 public:
  static MovieMemory& ofProcess();

  /// Null when nothing is known for this stamp.
  std::shared_ptr<const KnownMovie> find(const FileStamp& stamp);

  /// Keeps what is known of a file that had this stamp before it was opened, and forgets the movie
  /// that was used longest ago.
  void add(const FileStamp& stamp, KnownMovie movie);

 private:
  struct Entry {
    FileStamp stamp;
    std::shared_ptr<const KnownMovie> movie;
  };

  std::mutex mutex_;  // guards all that follows
  std::list<Entry> entries_;
};

}  // namespace velra
