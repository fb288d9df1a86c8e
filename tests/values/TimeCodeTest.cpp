// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/TimeCode.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/RunTimeError.h"

namespace velra {
namespace {

std::string label(double seconds, double rate) {
  return timeCodeText(SplitTimeCode(seconds, rate));
}

double inMilliseconds(double seconds) {
  return std::nearbyint(seconds * 1000) / 1000;
}

/// The label of a frame that starts `ticks` ticks after 0, by whole numbers alone.
std::string exactLabel(long ticks, long ticksPerSecond, long ticksPerFrame) {
  const long second = ticks / ticksPerSecond;
  const long frame = ticks % ticksPerSecond / ticksPerFrame;
  return timeCodeText({static_cast<std::int16_t>(second / 3600),
                       static_cast<std::int16_t>(second / 60 % 60),
                       static_cast<std::int16_t>(second % 60), static_cast<std::int16_t>(frame)});
}

TEST(TimeCode, EveryFrameOfAnHourHasItsLabelAtWholeRates) {
  for (const long rate : {24L, 25L, 30L, 50L}) {
    const auto perSecond = static_cast<double>(rate);
    std::string before;
    for (long k = 0; k <= rate * 3600; ++k) {
      const double start = static_cast<double>(k) / perSecond;
      const std::string expected = exactLabel(k, rate, 1);
      ASSERT_EQ(label(start, perSecond), expected) << rate << ": " << k;
      ASSERT_EQ(label(inMilliseconds(start), perSecond), expected) << rate << ": " << k;
      if (k > 0) {
        ASSERT_EQ(label(start - 0.0022, perSecond), before) << rate << ": " << k;
      }
      before = expected;
    }
  }
}

/// At such rates frames do not start on full seconds: the frame field counts from the second, and
/// a start that falls into the millisecond before one belongs to that second once it is rounded.
TEST(TimeCode, EveryFrameOfAnHourHasItsLabelAtBrokenRates) {
  for (const long nominal : {24'000L, 30'000L}) {
    const double rate = static_cast<double>(nominal) / 1001;
    for (long k = 0; k * 1001 <= nominal * 3600; ++k) {
      const double start = static_cast<double>(k) / rate;
      const std::string expected = exactLabel(k * 1001, nominal, 1001);
      ASSERT_EQ(label(start, rate), expected) << rate << ": " << k;
      const double stored = inMilliseconds(start);
      const bool sameSecond = std::floor(stored) <= start;
      ASSERT_EQ(label(stored, rate),
                sameSecond ? expected : exactLabel(std::lround(stored) * nominal, nominal, 1001))
          << rate << ": " << k;
      if (k == 0) continue;
      const double earlier = inMilliseconds(start - 0.0022);
      const double rest = earlier - std::floor(earlier) + 0.000501;
      ASSERT_EQ(SplitTimeCode(start - 0.0022, rate)[3], static_cast<int>(rest * rate))
          << rate << ": " << k;
    }
  }
}

/// In a container of coarse ticks, and in one of milliseconds behind an offset of half a tick.
TEST(TimeCode, TimesOfContainersHaveTheLabelOfTheirFrame) {
  for (const double rate : {25.0, 24000.0 / 1001, 30000.0 / 1001}) {
    for (long k = 0; k < 5000; ++k) {
      const double start = static_cast<double>(k) / rate;
      for (const double late :
           {std::round(start * 600) / 600 - start, std::round(start * 1000 - 0.5) / 1000 - start}) {
        ASSERT_EQ(label(start + late, rate), label(inMilliseconds(start + late), rate)) << k;
        if (late < 0) {
          ASSERT_EQ(label(start + late, rate), label(start, rate)) << rate << ": " << k;
        }
      }
    }
  }
}

TEST(TimeCode, SumsOfFrameLengthsStayOnTheirFrame) {
  double sum = 0;
  for (long k = 0; k < 25 * 600; ++k, sum += 1.0 / 25) {
    ASSERT_EQ(label(sum, 25), exactLabel(k, 25, 1)) << k;
  }
}

TEST(TimeCode, DecidesTheCorners) {
  const struct {
    double seconds;
    double rate;
    const char* text;
  } cases[] = {
      {0, 25, "00:00:00:00"},       {3599.5, 25, "00:59:59:12"},  {3600, 25, "01:00:00:00"},
      {59.9985, 25, "00:00:59:24"}, {59.9986, 25, "00:01:00:00"}, {3599.9995, 25, "01:00:00:00"},
      {1.9, 0, "00:00:01:00"},      {35999.9, 0, "09:59:59:00"},  {0.995, 100, "00:00:00:99"},
      {-0.04, 25, "-01:59:59:24"},
  };
  for (const auto& one : cases) EXPECT_EQ(label(one.seconds, one.rate), one.text) << one.seconds;
  for (const double seconds : {36'000.0, 35'999.9999, 1e9, 1e300, std::nan("")}) {
    EXPECT_THROW(SplitTimeCode(seconds, 25), RunTimeError) << seconds;
  }
}

TEST(TimeCode, JoinsWhatItSplit) {
  EXPECT_EQ(JoinTimeCode({1, 2, 3, 5}, 25), 3723.2);
  EXPECT_EQ(JoinTimeCode({1, 2, 3, 5}, 0), 3723);
  EXPECT_EQ(JoinTimeCode({32'767, 0, 0, 0}, 25), 32'767 * 3600.0);
  for (long k = 0; k < 25 * 3600; k += 7) {
    const double seconds = static_cast<double>(k) / 25;
    ASSERT_NEAR(JoinTimeCode(SplitTimeCode(seconds, 25), 25), seconds, 1e-9);
  }
}

}  // namespace
}  // namespace velra
