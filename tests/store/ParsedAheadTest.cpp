// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ParsedAhead.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velra {
namespace {

class ParsedAheadTest : public testing::Test {
 protected:
  /// Good and broken files, missing ones, ones that are known, and some that are too long to be
  /// read ahead with others.
  void make(int files) {
    for (int i = 0; i < files; ++i) {
      const std::string name = "file" + std::to_string(i);
      const std::string text(i % 40 == 7 ? 5'000'000 : 10, 'x');
      wanted_.push_back({folder_ / name, {}});
      if (i % 5 == 1) continue;
      folder_.write(name, "<n" + std::to_string(i) + ">" + text +
                              (i % 5 == 2 ? "" : "</n" + std::to_string(i) + ">"));
      if (i % 5 == 3) wanted_.back().known = fileStamp(folder_ / name);
    }
  }

  const test::TemporaryFolder folder_;
  std::vector<ParsedAhead::Wanted> wanted_;
};

TEST_F(ParsedAheadTest, GivesEachFileOfTheListInItsOrderAsItIs) {
  for (const int files : {0, 5, 300}) {
    wanted_.clear();
    make(files);
    ParsedAhead ahead(wanted_);
    for (int i = 0; i < files; ++i) {
      SCOPED_TRACE(i);
      const ParsedAhead::File& file = ahead.take();
      EXPECT_EQ(file.stamp.exists, i % 5 != 1);
      EXPECT_EQ(file.known, i % 5 == 3);
      EXPECT_EQ(file.parsed, i % 5 == 0 || i % 5 == 4);
      const bool told =
          file.document.reason().find("file" + std::to_string(i)) != std::string::npos;
      EXPECT_EQ(told, i % 5 == 1 || i % 5 == 2) << file.document.reason();
      const std::string root(file.document.documentElement().baseName());
      EXPECT_EQ(root, file.parsed ? "n" + std::to_string(i) : "");
    }
  }
}

TEST_F(ParsedAheadTest, CanBeLeftAtAnyFile) {
  make(100);
  for (int taken = 0; taken < 100; taken += 9) {
    ParsedAhead ahead(wanted_);
    for (int i = 0; i < taken; ++i) ahead.take();
  }
  EXPECT_TRUE(ParsedAhead(wanted_).take().parsed);
}

}  // namespace
}  // namespace velra
