// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PlannedRemovals.h"

namespace velra {

PlannedRemovals::Change PlannedRemovals::changeTo(
    std::size_t count, const std::function<bool(std::size_t place)>& wanted) const {
  Change change;
  change.all = lost_;
  change.count = count;
  for (std::size_t place = 0; place < count; ++place) {
    const bool known = place < known_.size() && known_[place];
    if (wanted(place) == known) continue;
    (known ? change.stays : change.more).push_back(place);
  }
  return change;
}

void PlannedRemovals::told(const Change& change) {
  lost_ = false;
  known_.resize(change.count);
  for (const std::size_t place : change.stays) known_[place] = false;
  for (const std::size_t place : change.more) known_[place] = true;
}

void PlannedRemovals::forget() {
  known_.clear();
  lost_ = true;
}

}  // namespace velra
