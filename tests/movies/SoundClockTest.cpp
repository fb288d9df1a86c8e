// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundClock.h"

#include <gtest/gtest.h>

namespace velra {
namespace {

using std::chrono::milliseconds;

// Blocks of 20 ms: 960 samples.
TEST(SoundClock, TellsWhatIsHeardAndNotWhatWasFetched) {
  const SoundClock::Instant start;
  SoundClock clock;
  clock.restart(5);
  EXPECT_FALSE(clock.running());
  clock.fetched(960, 0, false, start);
  EXPECT_FALSE(clock.running());
  clock.fetched(960, 960, false, start);
  EXPECT_TRUE(clock.running());
  EXPECT_DOUBLE_EQ(clock.at(start), 5);
  clock.fetched(960, 960, false, start + milliseconds(20));
  EXPECT_DOUBLE_EQ(clock.at(start + milliseconds(25)), 5.005);
}

TEST(SoundClock, StandsInAnUnderrunAndGoesOnAtTheEnd) {
  const SoundClock::Instant start;
  SoundClock clock;
  clock.restart(0);
  clock.fetched(960, 960, false, start);
  clock.fetched(960, 0, false, start + milliseconds(20));
  EXPECT_DOUBLE_EQ(clock.at(start + milliseconds(60)), 0.02);
  clock.fetched(960, 0, true, start + milliseconds(100));
  EXPECT_DOUBLE_EQ(clock.at(start + milliseconds(600)), 0.5);
}

TEST(SoundClock, LeavesACardThatFetchesNoMore) {
  const SoundClock::Instant start;
  SoundClock clock;
  clock.restart(0);
  clock.fetched(960, 960, false, start);
  EXPECT_DOUBLE_EQ(clock.at(start + milliseconds(900)), 0.02);
  EXPECT_DOUBLE_EQ(clock.at(start + milliseconds(3000)), 2.02);
}

}  // namespace
}  // namespace velra
