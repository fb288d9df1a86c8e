// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PathIndex.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace velra {
namespace {

using Plain = std::map<PathKey, std::set<PathIndex::Number>>;

// A condition that is never true sees all.
std::set<PathIndex::Number> numbersAt(const PathIndex& index, PathKey key) {
  std::set<PathIndex::Number> numbers;
  EXPECT_FALSE(index.any(key, [&](PathIndex::Number number) {
    EXPECT_TRUE(numbers.insert(number).second);
    return false;
  }));
  return numbers;
}

void expectSame(const PathIndex& index, const Plain& plain) {
  std::size_t size = 0;
  for (const auto& [key, numbers] : plain) {
    EXPECT_EQ(numbersAt(index, key), numbers);
    size += numbers.size();
    for (const PathIndex::Number wanted : numbers) {
      EXPECT_TRUE(index.any(key, [&](PathIndex::Number number) { return number == wanted; }));
    }
  }
  EXPECT_EQ(index.size(), size);
}

TEST(PathIndex, HoldsWhatAPlainMapDoesWhereObjectsShareKeys) {
  std::minstd_rand random(7);
  PathIndex index;
  Plain plain;
  for (PathIndex::Number number = 1; number <= 2000; ++number) {
    const PathKey key = random() % 40;
    index.add(key, number);
    plain[key].insert(number);
    const PathKey other = random() % 40;
    const PathIndex::Number gone = 1 + random() % number;  // there or not
    index.remove(other, gone);
    plain[other].erase(gone);
    if (number % 100 != 0) continue;
    const auto isOld = [&](PathIndex::Number old) { return old + 50 < number; };
    if (number % 500 == 0) index.removeIf(isOld);
    for (auto& [at, numbers] : plain) {
      if (number % 500 == 0) std::erase_if(numbers, isOld);
    }
    expectSame(index, plain);
  }
}

}  // namespace
}  // namespace velra
