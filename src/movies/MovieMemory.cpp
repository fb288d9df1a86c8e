// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieMemory.h"

#include <algorithm>
#include <utility>

namespace velra {

namespace {

constexpr std::size_t kMostMovies = 4;

}  // namespace

MovieMemory& MovieMemory::ofProcess() {
  static MovieMemory memory;
  return memory;
}

std::shared_ptr<const KnownMovie> MovieMemory::find(const FileStamp& stamp) {
  const std::lock_guard lock(mutex_);
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& one) { return one.stamp == stamp; });
  if (entry == entries_.end()) return nullptr;
  entries_.splice(entries_.begin(), entries_, entry);
  return entry->movie;
}

void MovieMemory::add(const FileStamp& stamp, KnownMovie movie) {
  const std::lock_guard lock(mutex_);
  entries_.push_front({stamp, std::make_shared<const KnownMovie>(std::move(movie))});
  if (entries_.size() > kMostMovies) entries_.pop_back();
}

}  // namespace velra
