// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/Value.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "values/Range.h"

namespace velra {
namespace {

TEST(Value, HasATextAndANumberWhereItCan) {
  const struct {
    Value value;
    std::optional<std::string> text;
    std::optional<double> number;
  } cases[] = {
      {{}, "", 0},
      {std::string(" 2.5 "), " 2.5 ", 2.5},
      {std::string("two"), "two", std::nullopt},
      {std::string(), "", std::nullopt},
      {Value::borrowed("25"), "25", 25},
      {std::int16_t{-7}, "-7", -7},
      {0.1, "0.1", 0.1},
      {25.0, "25", 25},
      {true, "True", std::nullopt},
      {Date{2001, 2, 3}, "2001-02-03", std::nullopt},
      {StringList{"a"}, std::nullopt, std::nullopt},
      {std::make_shared<Chunk>(), std::nullopt, std::nullopt},
      {std::make_shared<WordColl>(), std::nullopt, std::nullopt},
  };
  for (const auto& one : cases) {
    const auto name = &one - cases;
    EXPECT_EQ(Value(one.value), one.value) << name;
    if (one.text) {
      EXPECT_EQ(toText(one.value), *one.text) << name;
    } else {
      EXPECT_THROW(toText(one.value), RunTimeError) << name;
    }
    if (one.number) {
      EXPECT_EQ(toReal(one.value), *one.number) << name;
    } else {
      EXPECT_THROW(toReal(one.value), RunTimeError) << name;
    }
  }
}

TEST(Value, WordsAndRangesTakeTheirTimesInTheirOrder) {
  WordColl words;
  words.Add("", "", 1, 2, "word").strTxt += "s";
  EXPECT_EQ(words.Item(1).strTxt, "words");
  EXPECT_EQ(words.Item(1).dStart, 1);
  RangeSet ranges;
  ranges.Add(2, 1, "key")->dend = 3;
  EXPECT_EQ(ranges.Item("key")->dBegin, 1);
  EXPECT_EQ(ranges.Item(1)->dend, 3);
}

}  // namespace
}  // namespace velra
