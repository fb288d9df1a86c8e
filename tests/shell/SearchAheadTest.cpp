// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchAhead.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "base/RunTimeError.h"
#include "schema/SEColl.h"
#include "shell/Program.h"
#include "store/ObjectRegistry.h"

namespace velra::test {
namespace {

using namespace std::chrono_literals;

TEST(SearchAhead, CountsAsEachObjectDoesAndFailsWhereItIsAsked) {
  Program program;
  program.mainForm.OpenFile(program.sample());
  ObjectList objects;
  while (objects.size() < 2000) {
    for (const ObjectRef& object : program.document()->collObjects().described()) {
      objects.push_back(object);
    }
  }
  {
    SearchAhead search(objects, "the", false);
    EXPECT_EQ(search.counted(), 0U);
    for (std::size_t place = 1; search.counted() < objects.size(); place = search.counted() + 1) {
      search.countOn(place, 0ms);
      EXPECT_GE(search.counted(), place);
      EXPECT_LT(search.counted(), place + 256) << "more than it was asked for";
    }
    for (std::size_t i = 0; i < objects.size(); ++i) {
      EXPECT_EQ(search.hitsIn(i), objects[i]->secol().iSearchText("the", false));
    }
  }
  SEColl& fields = program.version(1)->secol();
  const auto set = std::find_if(fields.begin(), fields.end(), [](const SchemaElement& field) {
    return field.tyType() == tyType::SetOfStrings;
  });
  ASSERT_NE(set, fields.end());
  set->assign(StringList(40'000, "the"));
  SearchAhead search(objects, "the", false);
  search.countOn(1000, 0ms);
  for (std::size_t i = 0; i < 1000; ++i) {
    if (objects[i] == program.version(1)) {
      EXPECT_THROW(search.hitsIn(i), RunTimeError) << "more than 16 bits";
    } else {
      EXPECT_EQ(search.hitsIn(i), objects[i]->secol().iSearchText("the", false));
    }
  }
}

}  // namespace
}  // namespace velra::test
