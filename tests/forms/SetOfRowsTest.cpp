// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "forms/ctlSetOfString.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

void fill(ctlSetOfString& control, const Texts& texts) {
  control.Init(static_cast<std::int16_t>(texts.size()));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    control.setStrng(static_cast<std::int16_t>(i + 1), texts[i]);
  }
}

Texts texts(const SetOfRows& control) {
  Texts result;
  for (std::int16_t row = 1; row <= control.Count(); ++row) result.push_back(control.rowText(row));
  return result;
}

TEST(CtlSetOfString, IsFilledOnceAndGrowsAtItsEnd) {
  ctlSetOfString control;
  fill(control, {"a", "b"});
  control.Init(5);
  control.Command1_Click();
  control.editRow(3, "typed");
  control.Command1_Click();
  EXPECT_EQ(texts(control), (Texts{"a", "b", "typed", ""}));
}

TEST(CtlSetOfString, RemovesTheTickedRows) {
  struct Row {
    std::vector<std::int16_t> ticked;
    Texts left;
  };
  const Row rows[] = {{{}, {"a", "b", "c", "d"}}, {{1, 3}, {"b", "d"}}, {{1, 2}, {"c", "d"}},
                      {{4}, {"a", "b", "c"}},     {{3, 4}, {"a", "b"}}, {{1, 2, 3, 4}, {}}};
  for (const Row& row : rows) {
    ctlSetOfString control;
    fill(control, {"a", "b", "c", "d"});
    for (const std::int16_t ticked : row.ticked) control.tickRow(ticked, true);
    control.Command2_Click();
    EXPECT_EQ(texts(control), row.left);
    for (std::int16_t i = 1; i <= control.Count(); ++i) EXPECT_FALSE(control.isTicked(i));
  }
}

TEST(CtlSetOfString, DisabledIgnoresBothButtons) {
  ctlSetOfString control;
  fill(control, {"a"});
  control.tickRow(1, true);
  control.setEnabled(false);
  control.Command1_Click();
  control.Command2_Click();
  EXPECT_EQ(texts(control), (Texts{"a"}));
}

TEST(CtlSetOfString, ARowThatIsNotThereIsAnError) {
  ctlSetOfString control;
  fill(control, {"a"});
  for (const std::int16_t row : {std::int16_t{0}, std::int16_t{2}}) {
    EXPECT_THROW(control.Strng(row), RunTimeError);
    EXPECT_THROW(control.setStrng(row, ""), RunTimeError);
    EXPECT_THROW(control.tickRow(row, true), RunTimeError);
  }
}

TEST(CtlSetOfString, RowsStay16BitsInNumber) {
  ctlSetOfString control;
  control.Init(INT16_MAX);
  EXPECT_THROW(control.Command1_Click(), RunTimeError);
  EXPECT_EQ(control.Count(), INT16_MAX);
}

}  // namespace
}  // namespace velra
