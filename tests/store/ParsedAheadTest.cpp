// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ParsedAhead.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <utility>
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

TEST_F(ParsedAheadTest, TellsOfGoodPicturesThatFilesName) {
  std::string good = "BM" + std::string(64, '\0');
  for (const auto& [place, value] : {std::pair{10, 54}, {14, 40}, {18, 1}, {22, 1}, {28, 24}}) {
    good[static_cast<std::size_t>(place)] = static_cast<char>(value);
  }
  folder_.write("good.bmp", good);
  folder_.write("bad.bmp", "film");
  const char* const pictures[] = {"good.bmp", "bad.bmp", "missing.bmp", ""};
  for (std::size_t i = 0; i < 40; ++i) {
    wanted_.push_back({folder_ / ("file" + std::to_string(i)), {}});
    folder_.write("file" + std::to_string(i), std::string("<n>") + pictures[i % 4] + "</n>");
  }
  const auto named = [this](const XmlDocument& document) {
    const std::string name(document.documentElement().text());
    return name.empty() ? name : folder_ / name;
  };
  ParsedAhead ahead(wanted_, {named, nullptr});
  for (std::size_t i = 0; i < 40; ++i) {
    const ParsedAhead::File& file = ahead.take();
    const FileStamp stamp = file.picture ? file.picture->stamp : FileStamp();
    EXPECT_EQ(stamp, i % 4 == 0 ? fileStamp(folder_ / "good.bmp") : FileStamp());
  }
}

// As from a shelf that has gone: whoever waits is asked, may leave, and leaves threads behind.
TEST_F(ParsedAheadTest, CanBeLeftWhileAFileIsWaitedFor) {
  struct Left {};
  make(20);
  const auto comes = std::make_shared<std::atomic<bool>>(false);
  const auto stuck = [comes](const XmlDocument&) {
    while (!*comes) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return std::string();
  };
  int asked = 0;
  const auto waits = [&asked] {
    if (++asked == 3) throw Left();
  };
  EXPECT_THROW(ParsedAhead(wanted_, {stuck, waits}).take(), Left);
  EXPECT_GT(comes.use_count(), 2) << "a thread still holds its call";
  *comes = true;
  for (int i = 0; i < 5000 && comes.use_count() > 2; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  EXPECT_EQ(comes.use_count(), 2) << "the last thread frees what they shared";
}

}  // namespace
}  // namespace velra
