// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieProbe.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/BadMovies.h"
#include "platform/movie/FrameSource.h"
#include "support/NumberedMovie.h"

namespace velra {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds kSoon{3};

TEST(MovieProbe, TellsTheEndOfTheLastPicture) {
  for (const auto& movie : test::numberedMovies()) {
    EXPECT_NEAR(dMovieDuration(movie.path()), movie.pictures * movie.frameTime(), 0.002)
        << movie.name;
  }
}

TEST(MovieProbe, TellsTheLengthOfSoundAlone) {
  EXPECT_NEAR(dMovieDuration(test::moviePath("sound-only.mp3")), 3.0, 0.08);
}

TEST(MovieProbe, TellsZeroForWhatIsNoMovieAndSoon) {
  const test::TemporaryFolder folder;
  for (const std::string& path : test::makeNoMovies(folder)) {
    const auto start = steady_clock::now();
    EXPECT_EQ(dMovieDuration(path), 0) << path;
    FrameSource source;
    EXPECT_NE(source.open(path), "") << path;
    EXPECT_LT(steady_clock::now() - start, kSoon) << path;
  }
}

TEST(MovieProbe, TellsWhatIsLeftOfACutMovie) {
  const test::TemporaryFolder folder;
  for (const char* name : {"mpeg1-noise-25.mpg", "mjpeg-23976.avi", "h264-b-noise-50.mkv"}) {
    const double whole = dMovieDuration(test::moviePath(name));
    const double half = dMovieDuration(test::makeCutMovie(folder, name, 0.5));
    EXPECT_GT(half, whole * 0.35) << name;
    EXPECT_LT(half, whole * 0.65) << name;
  }
}

TEST(MovieProbe, SurvivesDamageInTheMiddle) {
  const test::TemporaryFolder folder;
  for (const auto& movie : test::numberedMovies()) {
    const std::string path = test::makeHoledMovie(folder, movie.name);
    FrameSource source;
    if (!source.open(path).empty()) continue;  // the hole may hit the index of an mp4
    const auto start = steady_clock::now();
    for (double t = 0; t < 8; t += 0.37) EXPECT_NE(source.at(t), nullptr) << movie.name << " " << t;
    EXPECT_GT(source.duration(), 0) << movie.name;
    EXPECT_LT(steady_clock::now() - start, kSoon) << movie.name;
  }
}

}  // namespace
}  // namespace velra
