// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LateRelease.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

namespace velra {
namespace {

/// Where and in which order things ended.
struct End {
  int thing;
  std::thread::id thread;
};

TEST(LateRelease, EndsAllInOrderOnAnotherThreadAlsoWhenItGoesItself) {
  std::vector<End> ends;
  const auto takeTwo = [&ends](LateRelease& release, int from) {
    for (int thing = from; thing < from + 2; ++thing) {
      const auto note = [&ends, thing](const int*) {
        ends.push_back({thing, std::this_thread::get_id()});
      };
      release.take(std::shared_ptr<const int>(nullptr, note));
    }
  };
  {
    LateRelease release;
    release.await();  // nothing
    takeTwo(release, 0);
    release.await();
    ASSERT_EQ(ends.size(), 2U);
    takeTwo(release, 2);
  }
  ASSERT_EQ(ends.size(), 4U);
  for (int thing = 0; thing < 4; ++thing) {
    EXPECT_EQ(ends[static_cast<std::size_t>(thing)].thing, thing);
    EXPECT_NE(ends[static_cast<std::size_t>(thing)].thread, std::this_thread::get_id());
  }
}

}  // namespace
}  // namespace velra
