// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LargePages.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velra {
namespace {

// More than the heap that is small enough to be left alone, in blocks as objects are.
TEST(LargePages, GathersALargeHeapToItsEndAndLeavesWhatItHolds) {
  constexpr std::size_t kBlocks = 50'000;
  const auto text = [](std::size_t i) {
    return std::string(1000, static_cast<char>('a' + i % 26));
  };
  LargePages pages;
  EXPECT_FALSE(pages.gatherSome());
  std::vector<std::string> blocks;
  for (std::size_t i = 0; i < kBlocks; ++i) blocks.push_back(text(i));
  std::size_t times = 1;
  while (pages.gatherSome() && times < kBlocks) ++times;
  EXPECT_LT(times, kBlocks / 100);
  EXPECT_FALSE(pages.gatherSome());
  for (std::size_t i = 0; i < kBlocks; ++i) ASSERT_EQ(blocks[i], text(i));
}

}  // namespace
}  // namespace velra
