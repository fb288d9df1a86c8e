// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchAhead.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <utility>

#include "schema/SEColl.h"

namespace velra {

namespace {

// Some tenths of a millisecond, so that no thread waits long for the last ones.
constexpr std::size_t kGroup = 256;

// Beyond that the memory gives no more.
constexpr std::size_t kMostThreads = 8;

constexpr std::int16_t kFailed = -1;

std::size_t helpersFor(std::size_t groups) {
  const std::size_t processors = std::thread::hardware_concurrency();
  return std::min({processors, kMostThreads, groups}) - (processors && groups ? 1 : 0);
}

}  // namespace

SearchAhead::SearchAhead(ObjectList objects, const std::string& text, bool matchCase)
    : objects_(std::move(objects)), search_(text, matchCase), hits_(objects_.size()) {}

std::size_t SearchAhead::groups() const {
  return (objects_.size() + kGroup - 1) / kGroup;
}

void SearchAhead::countOn(std::size_t place, std::chrono::milliseconds time) {
  const auto work = [this, place, end = Clock::now() + time] {
    while (countNext(place, end)) {
    }
  };
  std::vector<std::jthread> helpers;
  try {
    for (std::size_t i = helpersFor(groups() - next_); i > 0; --i) helpers.emplace_back(work);
  } catch (const std::system_error&) {
    // Where the system refuses one more, those that there are do the work, and who asks.
  }
  work();
}

std::size_t SearchAhead::counted() const {
  return std::min(objects_.size(), next_ * kGroup);
}

std::int16_t SearchAhead::hitsIn(std::size_t place) const {
  if (hits_[place] != kFailed) return hits_[place];
  // Counted once more, to fail where whoever asks can hear of it.
  return objects_[place]->secol().iHits(search_);
}

bool SearchAhead::countNext(std::size_t place, Clock::time_point end) {
  std::size_t group = next_;
  do {
    if (group == groups()) return false;
    if (group * kGroup >= place && Clock::now() >= end) return false;
  } while (!next_.compare_exchange_weak(group, group + 1));
  count(group);
  return true;
}

void SearchAhead::count(std::size_t group) {
  const std::size_t end = std::min(objects_.size(), (group + 1) * kGroup);
  for (std::size_t i = group * kGroup; i < end; ++i) {
    try {
      hits_[i] = objects_[i]->secol().iHits(search_);
    } catch (...) {
      // No error may end on a thread of its own: whoever asks for the object gets it.
      hits_[i] = kFailed;
    }
  }
}

}  // namespace velra
