// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormLayout.h"

#include <gtest/gtest.h>

namespace velra {
namespace {

FormMetrics metrics(int width, int height) {
  return {{width, height}, 255, 255, 400};
}

TEST(FormLayout, PanelIsTenSlotsHighAfterAPass) {
  for (const int passes : {0, 1, 7}) {
    const TwipsSize panel = panelSize(metrics(8400, 9300), passes);
    EXPECT_EQ(panel.width, passes == 0 ? 8145 : 7955);
    EXPECT_EQ(panel.height, passes == 0 ? 8045 : 13255);
  }
}

TEST(FormLayout, PlacesTheParts) {
  const auto places = placeControls(metrics(8400, 9300), {7955, 13255});
  ASSERT_TRUE(places);
  EXPECT_EQ(places->viewport.top, 400);
  EXPECT_EQ(places->viewport.height, 7700);
  EXPECT_EQ(places->vScroll.left, 8095);
  EXPECT_EQ(places->vScroll.height, 7650);
  EXPECT_EQ(places->vScrollMax, -5555);
  EXPECT_TRUE(places->vScrollVisible);
  EXPECT_FALSE(places->hScrollVisible);
  EXPECT_EQ(places->buttonTop, 8500);  // 400 high in the middle of the band from 8100 to 9300
}

TEST(FormLayout, BarsShowOnlyWhenNeeded) {
  const auto high = placeControls(metrics(8400, 14855), {7955, 13255});
  ASSERT_TRUE(high);
  EXPECT_FALSE(high->vScrollVisible);  // the viewport is just as high as the panel
  const auto narrow = placeControls(metrics(5000, 9300), {7955, 13255});
  ASSERT_TRUE(narrow);
  EXPECT_TRUE(narrow->hScrollVisible);
  EXPECT_EQ(narrow->hScrollMax, 4695 - 7500);
}

TEST(FormLayout, NothingIsPlacedWhenAPartWouldHaveNoSize) {
  struct Row {
    int width;
    int height;
    bool placed;
  };
  for (const Row& row : {Row{306, 9300, true}, Row{305, 9300, false}, Row{8400, 1651, true},
                         Row{8400, 1650, false}, Row{8400, 1600, false}}) {
    EXPECT_EQ(placeControls(metrics(row.width, row.height), {7955, 13255}).has_value(), row.placed)
        << row.width << " x " << row.height;
  }
}

TEST(FormLayout, WheelMovesByTheSmallChangeAndStopsAtBothEnds) {
  struct Row {
    std::int16_t value;
    int rotation;
    int max;
    std::int16_t result;
  };
  const Row rows[] = {
      {0, -120, -5555, -100},
      {-100, 120, -5555, 0},
      {-30, 1, -5555, 0},
      {0, 120, -5555, 0},
      {-5500, -360, -5555, -5555},
      {-5555, -120, -5555, -5555},
      {-200, 0, -5555, -200},
      {0, 120, 250, 100},
      {200, 120, 250, 250},
      {50, -120, 250, 0},
      {0, -120, 0, 0},
      {0, 120, 0, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(wheelScroll(row.value, row.rotation, row.max), row.result)
        << row.value << " " << row.rotation << " " << row.max;
  }
}

TEST(FormLayout, ScrollsAPartIntoView) {
  EXPECT_EQ(scrollToShow(0, 100, 1200, 7700, -5555), 0);           // in view
  EXPECT_EQ(scrollToShow(0, 9200, 1200, 7700, -5555), -2700);      // below: its end comes in
  EXPECT_EQ(scrollToShow(-5000, 1400, 1200, 7700, -5555), -1400);  // above: its start comes in
  EXPECT_EQ(scrollToShow(0, 100, 1200, 600, -5555), -100);         // too high: its start
  EXPECT_EQ(scrollToShow(-400, 100, 1200, 9000, 1000), 0);         // never beyond the range
}

}  // namespace
}  // namespace velra
