// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/FrameGrabber.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "movies/BadMovies.h"
#include "platform/files/BitmapCheck.h"
#include "support/ErrorOf.h"
#include "support/NumberedMovie.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::errorOf;

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

// Reads back a 24-bit bitmap as another program would.
PictureFrame bitmapIn(const std::string& bytes) {
  PictureFrame picture;
  picture.width = static_cast<int>(numberAt(bytes, 18));
  picture.height = static_cast<int>(numberAt(bytes, 22));
  const std::size_t start = numberAt(bytes, 10);
  const std::size_t width = numberAt(bytes, 18);
  const std::size_t stride = (width * 3 + 3) / 4 * 4;
  for (std::size_t row = numberAt(bytes, 22); row-- > 0;) {
    for (std::size_t x = 0; x < width; ++x) {
      const char* pixel = bytes.data() + start + row * stride + x * 3;
      for (int c = 0; c < 3; ++c) {
        picture.pixels.push_back(static_cast<std::uint8_t>(pixel[c]));
      }
      picture.pixels.push_back(255);
    }
  }
  return picture;
}

TEST(FrameGrabber, WritesThatVeryPictureInAnySize) {
  const test::TemporaryFolder folder;
  const std::string target = folder / "still.bmp";
  for (const auto& movie : test::numberedMovies()) {
    for (const int k : {0, 37, movie.pictures - 1}) {
      grabFrame(movie.path(), k / movie.rate(), {}, target);
      checkBitmap(target);
      const PictureFrame still = bitmapIn(folder.read("still.bmp"));
      ASSERT_EQ(still.width * 1000 + still.height, 160112) << "of the movie's own size";
      EXPECT_EQ(test::numberIn(still), k) << movie.name;
      grabFrame(movie.path(), k / movie.rate(), {131, 91}, target);
      checkBitmap(target);
      EXPECT_EQ(test::numberIn(bitmapIn(folder.read("still.bmp"))), k) << movie.name;
    }
  }
}

TEST(FrameGrabber, RaisesWithTheMovieOrTheTargetThatRefuses) {
  const test::TemporaryFolder folder;
  for (const std::string& path : test::makeNoMovies(folder)) {
    EXPECT_NE(errorOf([&] { grabFrame(path, 1, {16, 16}, folder / "x.bmp"); }), 0) << path;
  }
  const std::string movie = test::moviePath("mpeg4-25.avi");
  EXPECT_NE(errorOf([&] { grabFrame(movie, 1, {16, 16}, folder / "no such/x.bmp"); }), 0);
}

TEST(FrameGrabber, TellsBadBitmapsFromGoodOnes) {
  const test::TemporaryFolder folder;
  grabFrame(test::moviePath("mpeg4-25.avi"), 0, {16, 16}, folder / "good.bmp");
  const std::string good = folder.read("good.bmp");
  const auto changed = [&](std::size_t at, char byte) {
    std::string bytes = good;
    bytes[at] = byte;
    return bytes;
  };
  EXPECT_EQ(errorOf([&] { checkBitmap(folder / "good.bmp"); }), 0);
  EXPECT_EQ(errorOf([&] { checkBitmap(folder / "missing.bmp"); }), kFileNotFound);
  const std::string bad[] = {"",
                             "BM",
                             "GIF89a and so on, long enough for a head of a bitmap, but it is none",
                             good.substr(0, 53),
                             good.substr(0, good.size() - 1),
                             changed(0, 'X'),
                             changed(21, '\x7f'),   // width
                             changed(28, '\x05')};  // bits
  for (const std::string& bytes : bad) {
    const std::string path = folder.write("bad.bmp", bytes);
    EXPECT_EQ(errorOf([&] { checkBitmap(path); }), kInvalidPicture) << bytes.substr(0, 3);
  }
}

}  // namespace
}  // namespace velra
