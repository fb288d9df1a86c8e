// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "protocol/DescribedObject.h"
#include "schema/FieldSearch.h"

namespace velra {

/// The hits of a text in each of many objects, counted by several threads ahead of who asks. While
/// it lives, nobody may change the objects.
class SearchAhead {
 public:
  /// `objects` outlives it.
  SearchAhead(const ObjectList& objects, const std::string& text, bool matchCase);
  SearchAhead(const SearchAhead&) = delete;
  SearchAhead& operator=(const SearchAhead&) = delete;
  /// Leaves what has not been asked for.
  ~SearchAhead();

  /// As `iSearchText` of the object at this place, with its run-time errors. Called by one thread,
  /// in the order of the objects.
  std::int16_t hitsIn(std::size_t place);

 private:
  enum class State { Waiting, Counted, Failed };

  /// Takes the next group that nobody has taken; false when there is none.
  bool countNext();
  State count(std::size_t group);

  const ObjectList& objects_;
  const FieldSearch search_;
  std::vector<std::int16_t> hits_;
  std::vector<std::atomic<State>> groups_;
  std::atomic<std::size_t> next_ = 0;
  std::vector<std::thread> threads_;  // last: they use the others
};

}  // namespace velra
