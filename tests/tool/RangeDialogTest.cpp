// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/RangeDialog.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"

namespace velra {
namespace {

TEST(RangeDialogTest, ABadEntryGoesBackToTheLastGoodValue) {
  struct Case {
    RangeDialog::Field field;
    const char* typed;
    const char* shown;
  };
  const Case cases[] = {
      {RangeDialog::ss1, "10", "10"}, {RangeDialog::ss1, "100", "10"},
      {RangeDialog::ss1, "60", "10"}, {RangeDialog::ss1, "", "10"},
      {RangeDialog::ss1, "-1", "10"}, {RangeDialog::ss1, "1 ", "10"},
      {RangeDialog::ss1, "07", "07"}, {RangeDialog::ss1, "x", "7"},
      {RangeDialog::hh2, "59", "59"}, {RangeDialog::hh2, "60", "59"},
      {RangeDialog::ff1, "25", "25"},  // the rate itself is accepted
      {RangeDialog::ff1, "26", "25"},
  };
  RangeDialog dialog;
  dialog.SetTime(0, 0, 25.9);
  for (const Case& row : cases) EXPECT_EQ(dialog.Change(row.field, row.typed), row.shown);
}

TEST(RangeDialogTest, ArrowsStepWithinTheLimits) {
  RangeDialog dialog;
  dialog.SetTime(0, 0, 25);
  EXPECT_EQ(dialog.KeyDown(RangeDialog::mm1, RangeDialog::kKeyDown, 0), "0");
  EXPECT_EQ(dialog.KeyDown(RangeDialog::mm1, RangeDialog::kKeyUp, 0), "1");
  EXPECT_EQ(dialog.KeyDown(RangeDialog::mm1, RangeDialog::kKeyUp, 1), "1") << "Shift";
  dialog.Change(RangeDialog::mm1, "59");
  EXPECT_EQ(dialog.KeyDown(RangeDialog::mm1, RangeDialog::kKeyUp, 0), "59");
}

TEST(RangeDialogTest, TimesGoInAndComeOut) {
  RangeDialog dialog;
  dialog.SetTime(3723.48, 7, 25);
  EXPECT_EQ(dialog.text(RangeDialog::hh1), "1");
  EXPECT_EQ(dialog.text(RangeDialog::ff1), "12");
  EXPECT_DOUBLE_EQ(dialog.dGetStartTime(), 3723.48);
  EXPECT_EQ(dialog.dGetEndTime(), 7);
  dialog.SetTime(3723.48, 7, 0);
  EXPECT_FALSE(dialog.enabled(RangeDialog::ff1));
  EXPECT_TRUE(dialog.enabled(RangeDialog::ss1));
  EXPECT_EQ(dialog.dGetStartTime(), 3723) << "without a rate frames do not count";
  EXPECT_THROW(dialog.SetTime(36000, 36000, 25), RunTimeError);
}

TEST(RangeDialogTest, TheCloseBoxLeavesTheLastAnswer) {
  RangeDialog dialog;
  EXPECT_FALSE(dialog.bCancel());
  dialog.CancelButton();
  dialog.SetTime(0, 1, 25);
  EXPECT_TRUE(dialog.bCancel());
  dialog.OKButton();
  EXPECT_FALSE(dialog.bCancel());
}

}  // namespace
}  // namespace velra
