// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormTabs.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"

namespace velra {
namespace {

TEST(FormTabs, TenBoxesATab) {
  struct Row {
    int fields;
    int tabs;
    int tabsBehindOwn;  // the own tab included
  };
  for (const Row& row : {Row{0, 1, 2}, Row{1, 1, 2}, Row{9, 1, 2}, Row{10, 1, 3}, Row{11, 2, 3},
                         Row{20, 2, 4}, Row{21, 3, 4}, Row{25, 3, 4}, Row{29, 3, 4}}) {
    EXPECT_EQ(FormTabs::ofFields(row.fields).count(), row.tabs) << row.fields;
    EXPECT_EQ(FormTabs::behindOwnTab("Video", row.fields).count(), row.tabsBehindOwn) << row.fields;
  }
}

TEST(FormTabs, CaptionsKeysAndBoxes) {
  struct Row {
    FormTabs tabs;
    int tab;
    std::string caption;
    std::string key;
    int first;
    int last;
  };
  const FormTabs plain = FormTabs::ofFields(25);
  const FormTabs tool = FormTabs::behindOwnTab("Video", 25);
  const Row rows[] = {{plain, 1, "Set 1", "", 1, 10},
                      {plain, 2, "Set 2", "Set 2", 11, 20},
                      {plain, 3, "Set 3", "Set 3", 21, 23},
                      {tool, 2, "Set 1", "Set 2", 1, 10},
                      {tool, 4, "Set 3", "Set 4", 21, 23}};
  for (const Row& row : rows) {
    EXPECT_EQ(row.tabs.caption(row.tab), row.caption);
    EXPECT_EQ(row.tabs.key(row.tab), row.key);
    const BoxRange boxes = row.tabs.boxes(row.tab, 23);  // two ignored fields have no box
    EXPECT_EQ(boxes.first, row.first);
    EXPECT_EQ(boxes.last, row.last);
  }
  EXPECT_EQ(tool.caption(1), "Video");
  EXPECT_TRUE(tool.isOwnTab(1));
  EXPECT_FALSE(tool.isOwnTab(2));
  EXPECT_FALSE(plain.isOwnTab(1));
}

TEST(TabScroll, HoldsAHundredTabs) {
  TabScroll scroll;
  EXPECT_EQ(scroll[1], 0);
  scroll.set(100, -500);
  EXPECT_EQ(scroll[100], -500);
  EXPECT_EQ(scroll[99], 0);
  EXPECT_THROW(scroll.set(101, 0), RunTimeError);
  EXPECT_THROW(scroll[0], RunTimeError);
}

}  // namespace
}  // namespace velra
