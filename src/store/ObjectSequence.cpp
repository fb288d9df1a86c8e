// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ObjectSequence.h"

#include <algorithm>

namespace velra {

namespace {

constexpr std::size_t kFewGone = 1024;

}  // namespace

std::uint64_t ObjectSequence::add(const RegisteredRef& object) {
  entries_.push_back({next_, object});
  return next_++;
}

// As long as nothing has been swept, the distance of two numbers is that of their entries.
std::size_t ObjectSequence::offsetOf(std::uint64_t number) const {
  if (entries_.empty() || number < entries_.front().number) return entries_.size();
  const std::size_t most = std::min<std::size_t>(number - entries_.front().number, entries_.size());
  if (most < entries_.size() && entries_[most].number == number) return most;
  const auto last = entries_.begin() + static_cast<std::ptrdiff_t>(most);
  const auto at = std::lower_bound(
      entries_.begin(), last, number,
      [](const Entry& entry, std::uint64_t wanted) { return entry.number < wanted; });
  if (at == last || at->number != number) return entries_.size();
  return static_cast<std::size_t>(at - entries_.begin());
}

RegisteredRef ObjectSequence::find(std::uint64_t number) const {
  const std::size_t offset = offsetOf(number);
  return offset < entries_.size() ? entries_[offset].object : nullptr;
}

bool ObjectSequence::contains(std::uint64_t number) const {
  const std::size_t offset = offsetOf(number);
  return offset < entries_.size() && entries_[offset].object;
}

void ObjectSequence::remove(std::uint64_t number) {
  const std::size_t offset = offsetOf(number);
  if (offset == entries_.size() || !entries_[offset].object) return;
  entries_[offset].object.reset();
  ++gone_;
  if (gone_ <= kFewGone || gone_ * 2 < entries_.size()) return;
  std::erase_if(entries_, [](const Entry& entry) { return !entry.object; });
  gone_ = 0;
}

}  // namespace velra
