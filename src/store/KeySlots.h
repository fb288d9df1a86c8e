// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

namespace velra {

/// Where the keys with the same first bits begin in a list of entries that is sorted by `key`: a
/// search by halves in a long list waits for the memory at every step. The keys have to be spread
/// over the first bits.
class KeySlots {
 public:
  /// To be called anew when the list has changed; it may have 2^32 entries at most.
  template <class Entry>
  void set(const std::vector<Entry>& sorted) {
    begins_.assign(std::bit_ceil(sorted.size() + 1), 0);
    for (const Entry& entry : sorted) ++begins_[slotOf(entry.key)];
    std::exclusive_scan(begins_.begin(), begins_.end(), begins_.begin(), std::uint32_t{0});
  }
  void clear() { begins_ = {}; }

  /// The first entry of the list whose key is not smaller.
  template <class Entry>
  auto find(const std::vector<Entry>& sorted, std::uint64_t key) const {
    const std::size_t begin = begins_.empty() ? 0 : begins_[slotOf(key)];
    auto at = sorted.begin() + static_cast<std::ptrdiff_t>(begin);
    while (at != sorted.end() && at->key < key) ++at;
    return at;
  }

  /// Calls from the memory where a key's entries begin, for `callEntry`, and the first of them, for
  /// `find`. Both do not wait for it.
  void callSlot(std::uint64_t key) const {
    if (!begins_.empty()) __builtin_prefetch(&begins_[slotOf(key)]);
  }
  template <class Entry>
  void callEntry(const std::vector<Entry>& sorted, std::uint64_t key) const {
    if (!begins_.empty()) __builtin_prefetch(sorted.data() + begins_[slotOf(key)]);
  }

 private:
  std::size_t slotOf(std::uint64_t key) const {
    // As many of the first bits as number the slots; a shift by all of them would mean none.
    return begins_.size() == 1 ? 0 : key >> (64 - std::countr_zero(begins_.size()));
  }

  std::vector<std::uint32_t> begins_;
};

}  // namespace velra
