// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/KeyFramesAhead.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "platform/movie/FrameGrabber.h"
#include "support/ErrorOf.h"
#include "support/NumberedMovie.h"
#include "support/TemporaryFolder.h"

namespace velra::test {
namespace {

TEST(KeyFramesAhead, GivesThosePicturesThatWereAnnouncedAndLeavesNoOther) {
  const TemporaryFolder folder;
  ::setenv("TMPDIR", folder.path().c_str(), 1);
  const std::string movie = moviePath("mpeg4-25.avi");
  std::vector<double> times;
  for (int i = 0; i < 20; ++i) times.push_back(i * 0.12);
  {
    KeyFramesAhead ahead(movie, times);
    EXPECT_EQ(ahead.take("other.avi", times[0]), "");
    EXPECT_EQ(ahead.take(movie, 0.5), "");
    for (const std::size_t i : {0U, 1U, 6U, 13U}) {
      grabFrame(movie, times[i], {}, folder / "alone.bmp");
      const std::string file = ahead.take(movie, times[i]);
      ASSERT_TRUE(file.starts_with(folder.path())) << file;
      const std::string name = file.substr(folder.path().size() + 1);
      EXPECT_EQ(folder.read(name), folder.read("alone.bmp")) << i;
      std::filesystem::remove(file);
    }
    EXPECT_EQ(ahead.take(movie, times[6]), "");
  }
  std::filesystem::remove(folder / "alone.bmp");
  EXPECT_TRUE(folder.snapshot().empty());
  KeyFramesAhead none(folder / "none.avi", {1, 2});
  EXPECT_EQ(errorOf([&] { none.take(folder / "none.avi", 2); }), kInvalidArgument);
  ::unsetenv("TMPDIR");
}

}  // namespace
}  // namespace velra::test
