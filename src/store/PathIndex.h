// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tsl/robin_map.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>

#include "store/PathKey.h"

namespace velra {

/// The numbers of the objects at each key of a path, several at one in a damaged document. They
/// stand in one row, since a walk from node to node waits for memory at every step.
class PathIndex {
 public:
  using Number = std::uint64_t;

  void reserve(std::size_t keys) { first_.reserve(keys); }
  std::size_t size() const { return first_.size() + others_.size(); }

  /// Enters a number that is not there yet.
  void add(PathKey key, Number number);
  /// Takes it out, if it is there.
  void remove(PathKey key, Number number);
  /// Takes out all that a condition is true of; it may be asked twice of one.
  void removeIf(const std::function<bool(Number)>& condition);

  /// Calls for the numbers at a key, in no order, until a call returns true; tells whether one has.
  template <class Condition>
  bool any(PathKey key, Condition condition) const {
    const auto first = first_.find(key);
    if (first == first_.end()) return false;
    if (condition(first->second)) return true;
    const auto [begin, end] = others_.equal_range(key);
    for (auto at = begin; at != end; ++at) {
      if (condition(at->second)) return true;
    }
    return false;
  }

 private:
  tsl::robin_map<PathKey, Number, PathKeyHash> first_;
  std::unordered_multimap<PathKey, Number> others_;  // at keys that have one there
};

}  // namespace velra
