// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Collection.h"

#include <gtest/gtest.h>

#include "support/ErrorOf.h"

namespace velra {
namespace {

using test::errorOf;

TEST(Collection, CountsFromOneAndFindsByKey) {
  Collection<std::string> list;
  list.Add("a");
  list.Add("b", "second");
  list.Add("c");
  EXPECT_EQ(list.Item(1), "a");
  EXPECT_EQ(list.Item("second"), "b");
  EXPECT_EQ(list.find("c"), 3U);
  EXPECT_EQ(list.find("d"), 0U);
  for (const std::size_t position : {0U, 4U}) {
    EXPECT_EQ(errorOf([&] { list.Item(position); }), kSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { list.Remove(position); }), kSubscriptOutOfRange);
  }
  EXPECT_EQ(errorOf([&] { list.Item("third"); }), kInvalidArgument);
  EXPECT_EQ(errorOf([&] { list.Item(""); }), kInvalidArgument) << "no key is no key";
  EXPECT_EQ(errorOf([&] { list.Add("d", "second"); }), kDuplicateKey);
  EXPECT_EQ(list.Count(), 3U) << "a refused member is not added";
}

TEST(Collection, KeysFollowTheirMembers) {
  Collection<int> list;
  for (int i = 1; i <= 5; ++i) list.Add(i, i % 2 ? std::to_string(i) : "");
  list.Remove(2);
  EXPECT_EQ(list.Item("5"), 5);
  list.Remove("1");
  EXPECT_EQ(list.Item("3"), 3);
  EXPECT_EQ(list.Item(1), 3);
  list.Add(6, "1");
  EXPECT_EQ(list.Item("1"), 6);
  list.clear();
  EXPECT_FALSE(list.hasKey("3"));
}

}  // namespace
}  // namespace velra
