// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/IndexMemory.h"

#include <algorithm>

namespace velra {

namespace {

constexpr std::size_t kMostIndexes = 4;

}  // namespace

IndexMemory& IndexMemory::ofProcess() {
  static IndexMemory memory;
  return memory;
}

std::shared_ptr<const MovieIndex> IndexMemory::find(const FileStamp& stamp) {
  const std::lock_guard lock(mutex_);
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& one) { return one.stamp == stamp; });
  if (entry == entries_.end()) return nullptr;
  entries_.splice(entries_.begin(), entries_, entry);
  return entry->index;
}

void IndexMemory::add(const FileStamp& stamp, const MovieIndex& index) {
  const std::lock_guard lock(mutex_);
  entries_.push_front({stamp, std::make_shared<const MovieIndex>(index)});
  if (entries_.size() > kMostIndexes) entries_.pop_back();
}

}  // namespace velra
