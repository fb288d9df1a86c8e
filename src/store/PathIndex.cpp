// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PathIndex.h"

#include <algorithm>

namespace velra {

void PathIndex::add(PathKey key, Number number) {
  if (!first_.try_emplace(key, number).second) others_.emplace(key, number);
}

void PathIndex::remove(PathKey key, Number number) {
  const auto first = first_.find(key);
  if (first == first_.end()) return;
  const auto [begin, end] = others_.equal_range(key);
  if (first->second == number) {
    if (begin == end) {
      first_.erase(first);
    } else {
      first.value() = begin->second;
      others_.erase(begin);
    }
    return;
  }
  const auto other = std::find_if(begin, end, [&](const auto& at) { return at.second == number; });
  if (other != end) others_.erase(other);
}

void PathIndex::removeIf(const std::function<bool(Number)>& condition) {
  std::erase_if(others_, [&](const auto& at) { return condition(at.second); });
  for (auto at = first_.begin(); at != first_.end();) {
    if (!condition(at->second)) {
      ++at;
      continue;
    }
    const auto other = others_.find(at->first);
    if (other == others_.end()) {
      at = first_.erase(at);
    } else {
      at.value() = other->second;
      others_.erase(other);
      ++at;
    }
  }
}

}  // namespace velra
