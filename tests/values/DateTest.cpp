// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/Date.h"

#include <gtest/gtest.h>

namespace velra {
namespace {

struct Case {
  const char* text;
  const char* iso;  // null: no date
};

void check(std::optional<Date> (*parse)(const std::string&), const Case& one) {
  const std::optional<Date> date = parse(one.text);
  ASSERT_EQ(date.has_value(), one.iso != nullptr) << one.text;
  if (date) {
    EXPECT_EQ(date->isoText(), one.iso) << one.text;
  }
}

TEST(Date, ReadsThreePartsThatMayOverflow) {
  for (const Case& one : std::initializer_list<Case>{
           {"2001-01-31", "2001-01-31"},    {"2001-1-2", "2001-01-02"},
           {"2001-13-01", "2002-01-01"},    {"2001-00-01", "2000-12-01"},
           {"2001-03-00", "2001-02-28"},    {"2000-03-00", "2000-02-29"},
           {"2001-02-29", "2001-03-01"},    {"2001-01-366", "2002-01-01"},
           {"2001-25-01", "2003-01-01"},    {"2001-01-02T10:00-5", nullptr},
           {"2001-01-02-03", "2001-01-02"}, {" 2001 - 1 - 2 ", "2001-01-02"},
           {"9999-12-31", "9999-12-31"},    {"9999-12-32", nullptr},
           {"0000-01-00", nullptr},         {"32767-01-01", nullptr},
           {"40000-01-01", nullptr},        {"2001-01", nullptr},
           {"2001-01-", nullptr},           {"2001-x-01", nullptr},
           {"-2001-01-01", nullptr},        {"", nullptr},
       }) {
    check(Date::fromIsoText, one);
  }
}

TEST(Date, ReadsWhatPeopleWriteMonthFirst) {
  for (const Case& one : std::initializer_list<Case>{
           {"1/2/2001", "2001-01-02"},
           {"13/1/2001", "2002-01-01"},
           {"1/2", nullptr},
           {"1/2/2001/4", nullptr},
           {"2001-01-02", nullptr},
       }) {
    check(Date::fromUserText, one);
  }
}

TEST(Date, EveryDayComesBackFromItsText) {
  for (int day = 1; day <= 365 * 400 + 97; day += 13) {
    const auto date = Date::fromSerial(1900, 1, day);
    ASSERT_TRUE(date);
    EXPECT_EQ(Date::fromIsoText(date->isoText()), date);
  }
}

}  // namespace
}  // namespace velra
