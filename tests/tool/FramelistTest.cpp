// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/Framelist.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"

namespace velra {
namespace {

using Tags = std::vector<std::int16_t>;

class FramelistTest : public ::testing::Test {
 protected:
  FramelistTest() {
    strip.Resize(9000);
    strip.events.Click = [this](std::int16_t position, std::int16_t tag) {
      clicks.emplace_back(position, tag);
    };
  }
  void add(std::int16_t place) { strip.iAddImage({}, place, "x"); }
  Tags tags() const {
    Tags all;
    for (std::int16_t i = 1; i <= strip.Count(); ++i) all.push_back(strip.image(i).tag);
    return all;
  }
  std::vector<bool> squares() const {
    std::vector<bool> all;
    for (std::int16_t i = 1; i <= strip.Count(); ++i) all.push_back(strip.image(i).squareVisible);
    return all;
  }

  Framelist strip;
  std::vector<std::pair<int, int>> clicks;
};

TEST_F(FramelistTest, ANewcomerPushesItsWayIn) {
  for (const std::int16_t place : Tags{1, 2, 3}) add(place);
  add(2);
  EXPECT_EQ(tags(), (Tags{1, 3, 4, 2}));
  EXPECT_EQ(strip.left(4), 1100);
  add(0);  // a segment that its chain does not reach
  EXPECT_EQ(strip.left(5), -1100);
}

TEST_F(FramelistTest, RemovalClosesTheGap) {
  for (const std::int16_t place : Tags{1, 1, 3}) add(place);  // tags 2, 1, 3
  strip.RemoveImage(1);
  EXPECT_EQ(tags(), (Tags{1, 2}));
  EXPECT_EQ(strip.left(2), 1100);
  EXPECT_THROW(strip.RemoveImage(3), RunTimeError);
}

TEST_F(FramelistTest, AStretchFollowsTheTags) {
  for (const std::int16_t place : Tags{1, 1, 1, 4}) add(place);  // tags 3, 2, 1, 4
  strip.MouseDown(2, 1);
  EXPECT_TRUE(clicks.empty()) << "Shift with nothing selected";
  strip.MouseDown(1, 0);
  strip.MouseDown(3, 1);
  EXPECT_EQ(clicks, (std::vector<std::pair<int, int>>{{1, 3}, {1, 3}}));
  EXPECT_EQ(squares(), (std::vector<bool>{true, true, true, false}));
  strip.RemoveSelected();
  EXPECT_EQ(tags(), Tags{1});
  EXPECT_EQ(strip.iSelectedStart(), -1);
  EXPECT_EQ(strip.iSelectedEnd(), -1);
}

TEST_F(FramelistTest, WritesOfTheSelectionThatCount) {
  for (const std::int16_t place : Tags{1, 2, 3}) add(place);
  strip.setStartSquareColor(49152);
  strip.setISelectedEnd(2);
  EXPECT_EQ(strip.iSelectedEnd(), -1) << "there is no start";
  strip.setISelectedStart(2);
  for (const std::int16_t ignored : Tags{0, 4}) {
    strip.setISelectedStart(ignored);
    strip.setISelectedEnd(ignored);
  }
  EXPECT_EQ(strip.iSelectedStart(), 2);
  EXPECT_EQ(strip.iSelectedEnd(), 2);
  EXPECT_EQ(strip.image(2).squareColour, 49152);
  strip.setISelectedStart(-1);
  EXPECT_EQ(strip.iSelectedEnd(), -1);
  EXPECT_EQ(squares(), (std::vector<bool>{false, true, false})) << "clearing hides nothing";
}

TEST_F(FramelistTest, TheScrollBarReachesAsFarAsSixteenBits) {
  for (std::int16_t place = 1; place <= 8; ++place) add(place);
  EXPECT_FALSE(strip.scrollBar().visible) << "8900 of 9000";
  add(9);
  EXPECT_TRUE(strip.scrollBar().visible);
  EXPECT_EQ(strip.scrollBar().max, 9 * 1100 + 100 - 9000);
  EXPECT_EQ(strip.scrollBar().smallChange, 250);
  strip.Scroll(32000);
  EXPECT_EQ(strip.panelLeft(), -(9 * 1100 + 100 - 9000));
  strip.Resize(strip.panelWidth());
  EXPECT_EQ(strip.panelLeft(), 0);
  EXPECT_FALSE(strip.scrollBar().visible);
  strip.Resize(57600);  // on a screen of 3840 pixels
  strip.Resize(9000);
  for (std::int16_t place = 10; place <= 37; ++place) add(place);  // 40,800 less 9,000
  EXPECT_THROW(add(38), RunTimeError);
  strip.setImageX(32667);
  EXPECT_EQ(strip.iCellX(), 32767);
  EXPECT_THROW(strip.setImageX(32668), RunTimeError);
}

}  // namespace
}  // namespace velra
