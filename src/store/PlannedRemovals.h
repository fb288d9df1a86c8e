// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace velra {

/// Which removed files the saves of an opening have looked at and told the store of, by their place
/// in `RemovedFiles::all`, so that a save has to do with those alone that came since.
class PlannedRemovals {
 public:
  /// From what is known to what a save wants.
  struct Change {
    std::vector<std::size_t> more;
    std::vector<std::size_t> stays;  // known, and not wanted any more
    bool all = false;                // what the store has been told before counts no more
    std::size_t count = 0;           // of all places
  };
  /// For so many places, by whether one is wanted.
  Change changeTo(std::size_t count, const std::function<bool(std::size_t place)>& wanted) const;

  /// The save with this change has been finished.
  void told(const Change& change);
  /// The store may have lost what it was told, or the plan has not reached it.
  void forget();

 private:
  std::vector<bool> known_;
  bool lost_ = false;
};

}  // namespace velra
