// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchAhead.h"

#include <algorithm>
#include <system_error>

#include "schema/SEColl.h"

namespace velra {

namespace {

// Some tenths of a millisecond, so that no thread waits long for the last ones.
constexpr std::size_t kGroup = 256;

// Beyond that the memory gives no more.
constexpr std::size_t kMostThreads = 8;

std::size_t helpersFor(std::size_t groups) {
  const std::size_t processors = std::thread::hardware_concurrency();
  return std::min({processors, kMostThreads, groups}) - (processors && groups ? 1 : 0);
}

}  // namespace

SearchAhead::SearchAhead(const ObjectList& objects, const std::string& text, bool matchCase)
    : objects_(objects),
      search_(text, matchCase),
      hits_(objects.size()),
      groups_((objects.size() + kGroup - 1) / kGroup) {
  try {
    for (std::size_t i = helpersFor(groups_.size()); i > 0; --i) {
      threads_.emplace_back([this] {
        while (countNext()) {
        }
      });
    }
  } catch (const std::system_error&) {
    // Where the system refuses one more, those that there are do the work, and who asks.
  }
}

SearchAhead::~SearchAhead() {
  next_ = groups_.size();
  for (std::thread& thread : threads_) thread.join();
}

std::int16_t SearchAhead::hitsIn(std::size_t place) {
  std::atomic<State>& group = groups_[place / kGroup];
  while (group == State::Waiting && countNext()) {
  }
  group.wait(State::Waiting);
  if (group == State::Counted) return hits_[place];
  // Counted once more, to fail where whoever asks can hear of it.
  return objects_[place]->secol().iHits(search_);
}

bool SearchAhead::countNext() {
  const std::size_t group = next_++;
  if (group >= groups_.size()) return false;
  groups_[group] = count(group);
  groups_[group].notify_all();
  return true;
}

SearchAhead::State SearchAhead::count(std::size_t group) {
  const std::size_t end = std::min(objects_.size(), (group + 1) * kGroup);
  try {
    for (std::size_t i = group * kGroup; i < end; ++i) {
      hits_[i] = objects_[i]->secol().iHits(search_);
    }
    return State::Counted;
  } catch (...) {
    // No error may end on a thread of its own: whoever asks for the object gets it.
    return State::Failed;
  }
}

}  // namespace velra
