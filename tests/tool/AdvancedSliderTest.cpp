// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/AdvancedSlider.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "tool/PropertyBag.h"

namespace velra {
namespace {

using Indexes = std::vector<std::int16_t>;

class AdvancedSliderTest : public ::testing::Test {
 protected:
  AdvancedSliderTest() {
    advsld.ReadProperties({});
    advsld.setDMin(0);
    advsld.setDMax(100);
    advsld.Resize(10400);
    advsld.events.Click = [this](std::int16_t i) {
      events.push_back("click " + std::to_string(i));
    };
    advsld.events.DblClick = [this](std::int16_t i) {
      events.push_back("double " + std::to_string(i));
    };
    advsld.events.Scroll = [this] { events.emplace_back("scroll"); };
  }
  Indexes borders() const {
    Indexes widths;
    for (const auto& mark : advsld.marks()) {
      widths.push_back(static_cast<std::int16_t>(mark.borderWidth));
    }
    return widths;
  }

  AdvancedSlider advsld;
  std::vector<std::string> events;
};

TEST_F(AdvancedSliderTest, ARangeIsClippedAtTheEndsInItsOwnWay) {
  struct Case {
    double begin, end;
    std::int16_t index;
    double storedBegin, storedEnd;
  };
  advsld.setDMin(6);
  const Case cases[] = {
      {8, 9, 1, 8, 9},        // inside
      {5, 8, 2, 8, 8},        // begins before the span: shrinks to its end
      {95, 120, 3, 95, 100},  // ends behind it: cut
      {20, 20, 4, 20, 20},    // no length
      {9, 8, 0, 0, 0},        // refused
  };
  for (const Case& row : cases) {
    const auto before = advsld.Count();
    ASSERT_EQ(advsld.iAddRange(row.begin, row.end, "x"), row.index);
    if (row.index == 0) {
      EXPECT_EQ(advsld.Count(), before);
      continue;
    }
    const Range& range = *advsld.colRanges().Item(static_cast<std::size_t>(row.index));
    EXPECT_EQ(range.dBegin, row.storedBegin);
    EXPECT_EQ(range.dend, row.storedEnd);
  }
}

TEST_F(AdvancedSliderTest, PlacesComeFromEdgesRoundedToWholeTwips) {
  advsld.iAddRange(25, 50, "x");
  EXPECT_EQ(advsld.marks()[0].left, 200 + 2500);
  EXPECT_EQ(advsld.marks()[0].width, 2500);
  advsld.Resize(10400.5);  // a tie goes to the even width
  EXPECT_EQ(advsld.marks()[0].width, 2500);
  advsld.Resize(10401.5);
  EXPECT_EQ(advsld.marks()[0].width, 2500.5);
  EXPECT_THROW(advsld.Resize(40000), RunTimeError);
}

TEST_F(AdvancedSliderTest, TheThumbHasFiveThousandSteps) {
  struct Case {
    double written, position;
    std::int32_t value;
  };
  for (const Case& row : {Case{50, 50, 2500}, Case{-1, 0, 0}, Case{101, 100, 5000},
                          Case{0.011, 0.011, 1}, Case{0.01, 0.01, 0}}) {
    advsld.setDPosition(row.written);
    EXPECT_EQ(advsld.dPosition(), row.position);
    EXPECT_EQ(advsld.slider().value, row.value);
  }
  EXPECT_TRUE(events.empty());
  advsld.UserMovesThumb(1);
  EXPECT_EQ(advsld.dPosition(), 0.02);
  EXPECT_EQ(events, std::vector<std::string>{"scroll"});
  advsld.setDMin(30);
  EXPECT_EQ(advsld.dPosition(), 0.02) << "a new span moves the thumb only when it is written";
}

TEST_F(AdvancedSliderTest, ASpanOfNoLengthIsADivisionByZero) {
  advsld.setDMax(0);
  EXPECT_THROW(advsld.setDPosition(0), RunTimeError);
  EXPECT_THROW(advsld.iAddRange(0, 0, "x"), RunTimeError);
  EXPECT_THROW(advsld.setDLargeChange(1), RunTimeError);
}

TEST_F(AdvancedSliderTest, AStretchIsTimeAndNotOrderOfAdding) {
  advsld.setRangeColor(192);
  advsld.setStartRangeColor(49152);
  for (const double begin : {30.0, 10.0, 50.0, 20.0, 10.0}) advsld.iAddRange(begin, 60, "x");
  advsld.MouseDown(4, 1);  // Shift with nothing selected
  EXPECT_TRUE(events.empty());
  advsld.MouseDown(1, 0);
  advsld.MouseDown(2, 1);
  EXPECT_EQ(events, (std::vector<std::string>{"click 1", "click 1"}));
  EXPECT_EQ(advsld.colSelectedIndexes(), (Indexes{1, 2, 4, 5})) << "equal begins go together";
  EXPECT_EQ(borders(), (Indexes{6, 6, 4, 6, 6}));
  EXPECT_EQ(advsld.marks()[0].colour, 49152);
  EXPECT_EQ(advsld.marks()[1].colour, 192);
  advsld.MouseDown(3, 3);  // Shift and Control together are no Shift
  EXPECT_EQ(advsld.colSelectedIndexes(), Indexes{3});
  advsld.DoubleClick(2);
  EXPECT_EQ(events,
            (std::vector<std::string>{"click 1", "click 1", "click 3", "click 2", "double 2"}));
}

TEST_F(AdvancedSliderTest, RemovalLeavesTheSelectionsNumbersBehind) {
  for (const double begin : {10.0, 20.0, 30.0}) advsld.iAddRange(begin, begin + 5, "x");
  advsld.RemoveSelectedRanges();
  EXPECT_EQ(advsld.Count(), 3) << "nothing was selected";
  advsld.setIRangeSelectedStart(2);
  advsld.setIRangeSelectedEnd(3);
  advsld.RemoveSelectedRanges();
  EXPECT_EQ(advsld.Count(), 1);
  EXPECT_EQ(advsld.marks().size(), 1u);
  EXPECT_EQ(advsld.iRangeSelectedStart(), 2);
  EXPECT_THROW(advsld.colSelectedIndexes(), RunTimeError);
  EXPECT_THROW(advsld.Refresh(), RunTimeError);
  advsld.setIRangeSelectedStart(-1);
  EXPECT_TRUE(advsld.colSelectedIndexes().empty());
}

TEST_F(AdvancedSliderTest, AnUpdateIgnoresBadIndexesAndDoesNotClamp) {
  advsld.iAddRange(10, 20, "old");
  advsld.UpdateRange(0, 1, 2);
  advsld.UpdateRange(2, 1, 2);
  advsld.UpdateRange(1, -5, 200);
  EXPECT_EQ(advsld.colRanges().Item(1)->dBegin, -5);
  EXPECT_EQ(advsld.marks()[0].caption, "old");
  EXPECT_EQ(advsld.marks()[0].width, 20500);
}

TEST_F(AdvancedSliderTest, TheBagHasItsOrderAndItsOddKey) {
  advsld.iAddRange(10, 20, "x");
  advsld.setIRangeSelectedStart(1);
  PropertyBag bag;
  advsld.WriteProperties(bag);
  std::vector<std::string> keys;
  for (const auto& entry : bag.entries()) keys.push_back(entry.key);
  EXPECT_EQ(keys, (std::vector<std::string>{"RangeColor", "StartRangeColor", "dMin", "dMax",
                                            "dMiRangeSelectedax", "dMiRangeSelectedax", "dPosition",
                                            "dLargeChange", "Enabled"}));
  AdvancedSlider other;
  EXPECT_FALSE(other.Enabled());
  other.ReadProperties(bag);
  EXPECT_EQ(other.dMax(), 100);
  EXPECT_EQ(other.iRangeSelectedStart(), -1) << "a stored selection never comes back";
  EXPECT_TRUE(other.Enabled());
}

TEST_F(AdvancedSliderTest, TheBlinkLineTurnsAtEachTick) {
  bool timer = false;
  advsld.events.RunBlinkTimer = [&](bool on) { timer = on; };
  advsld.PutBlinkLine(50);
  EXPECT_TRUE(timer && advsld.blinkLine().visible);
  EXPECT_EQ(advsld.blinkLine().x, 5200);
  advsld.BlinkTick();
  EXPECT_FALSE(advsld.blinkLine().visible);
  advsld.BlinkTick();
  EXPECT_TRUE(advsld.blinkLine().visible);
  advsld.RemoveBlinkLine();
  EXPECT_FALSE(timer || advsld.blinkLine().visible);
}

TEST_F(AdvancedSliderTest, HitsAndNeighbours) {
  advsld.iAddRange(10, 20, "x");
  advsld.iAddRange(20, 30, "x");
  advsld.iAddRange(60, 60, "x");  // no width
  EXPECT_EQ(advsld.iRangeAt(200 + 1999, 60), 1);
  EXPECT_EQ(advsld.iRangeAt(200 + 2000, 60), 2);
  EXPECT_EQ(advsld.iRangeAt(200 + 6050, 60), 3);
  EXPECT_EQ(advsld.iRangeAt(200 + 5000, 60), 0);
  EXPECT_EQ(advsld.iNeighbour(true), 1);
  EXPECT_EQ(advsld.iNeighbour(false), 3);
  advsld.MouseDown(2, 0);
  EXPECT_EQ(advsld.iNeighbour(true), 3);
  EXPECT_EQ(advsld.iNeighbour(false), 1);
}

}  // namespace
}  // namespace velra
