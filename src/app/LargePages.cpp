// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LargePages.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace velra {

namespace {

constexpr std::ptrdiff_t kLargePage = 2 << 20;

// A smaller heap is walked over in a moment anyway.
constexpr std::ptrdiff_t kLargeHeap = 16 * kLargePage;

// MADV_COLLAPSE of linux/mman.h, which Linux has since 6.1 and the C library names later.
constexpr int kCollapse = 25;

char* endOfHeap() {
  return static_cast<char*>(::sbrk(0));
}

/// Where a large page can begin, from a place on.
char* nextBegin(char* place) {
  const auto beyond = static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(place) %
                                                  std::uintptr_t{kLargePage});
  return beyond == 0 ? place : place + (kLargePage - beyond);
}

}  // namespace

LargePages::LargePages() : begin_(nextBegin(endOfHeap())), next_(begin_) {}

bool LargePages::gatherSome() {
  const char* const end = endOfHeap();
  const std::ptrdiff_t size = end - begin_;
  if (size < kLargeHeap) return false;
  next_ = std::min(next_, begin_ + size / kLargePage * kLargePage);  // the end may have gone back
  if (end - next_ < kLargePage) return false;
  // What cannot be gathered stays as it is.
  ::madvise(next_, kLargePage, kCollapse);
  next_ += kLargePage;
  return end - next_ >= kLargePage;
}

}  // namespace velra
