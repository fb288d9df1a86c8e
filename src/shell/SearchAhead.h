// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "protocol/DescribedObject.h"
#include "schema/FieldSearch.h"

namespace velra {

/// The hits of a text in each of many objects, counted by several threads for a while at a time.
/// The threads end with each call: between two of them nobody reads the objects, and whoever
/// writes to one changes what is found in it if it has not been counted yet.
class SearchAhead {
 public:
  SearchAhead(ObjectList objects, const std::string& text, bool matchCase);

  const ObjectList& objects() const { return objects_; }

  /// Counts on, in the order of the objects, at least those before this place, and others until so
  /// much time has passed since the call. Nobody may change the objects meanwhile.
  void countOn(std::size_t place, std::chrono::milliseconds time);

  /// How many have been counted, from the first on.
  std::size_t counted() const;

  /// As `iSearchText` of an object that has been counted, with its run-time errors.
  std::int16_t hitsIn(std::size_t place) const;

 private:
  using Clock = std::chrono::steady_clock;

  std::size_t groups() const;
  /// Counts the next group that nobody has taken; false when none is left or it is time to end.
  bool countNext(std::size_t place, Clock::time_point end);
  void count(std::size_t group);

  const ObjectList objects_;
  const FieldSearch search_;
  std::vector<std::int16_t> hits_;
  std::atomic<std::size_t> next_ = 0;  // group
};

}  // namespace velra
