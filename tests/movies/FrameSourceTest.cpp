// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/FrameSource.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>

#include "movies/BadMovies.h"
#include "movies/MovieLength.h"
#include "movies/OddMovies.h"
#include "movies/PictureConverter.h"
#include "support/NumberedMovie.h"

namespace velra {
namespace {

using test::NumberedMovie;

class Pictures : public ::testing::TestWithParam<NumberedMovie> {
 protected:
  void SetUp() override { ASSERT_EQ(source_.open(movie().path()), ""); }

  const NumberedMovie& movie() const { return GetParam(); }

  int numberAt(double seconds) { return numberAt(source_, seconds); }

  int numberAt(FrameSource& source, double seconds) {
    const auto picture = source.at(seconds);
    if (!picture) return -2;
    return test::numberIn(*converter_.convert(*picture->frame));
  }

  int randomNumber() {
    return std::uniform_int_distribution<int>(0, movie().pictures - 1)(random_);
  }

  FrameSource source_;
  PictureConverter converter_;
  std::mt19937 random_{1895};
};

TEST_P(Pictures, AreThoseWhoseSpanHoldsTheTimeHoweverItWasComputed) {
  std::uniform_real_distribution<double> inside(0.0, 0.9);
  for (int i = 0; i < 120; ++i) {
    const int k = randomNumber();
    const double bound = k / movie().rate();
    ASSERT_EQ(numberAt(bound + inside(random_) * movie().frameTime()), k) << "behind " << bound;
    ASSERT_EQ(numberAt(bound), k);
    ASSERT_EQ(numberAt(std::round(bound * 1000) / 1000), k) << "in milliseconds";
    ASSERT_EQ(numberAt(bound - 0.0022), std::max(0, k - 1)) << "before " << bound;
  }
}

TEST_P(Pictures, FollowEachOtherInBothDirections) {
  const double frame = source_.frameTime();
  EXPECT_NEAR(frame, movie().frameTime(), 1e-9);
  double position = 0;
  for (int k = 0; k < movie().pictures; ++k, position += frame) ASSERT_EQ(numberAt(position), k);
  for (int k = movie().pictures - 1; k >= 0; --k) {
    position -= frame;
    ASSERT_EQ(numberAt(position), k);
  }
}

TEST_P(Pictures, EndWithTheFirstAndTheLast) {
  const int last = movie().pictures - 1;
  EXPECT_EQ(numberAt(source_.duration() + 100), last);
  EXPECT_EQ(numberAt(-5), 0);
  EXPECT_EQ(numberAt(source_.duration() - 0.0022), last);
  EXPECT_EQ(numberAt(0), 0);
  EXPECT_EQ(source_.after(*source_.at(source_.duration())), nullptr);
}

TEST_P(Pictures, LastUntilTheEndOfTheLastOne) {
  EXPECT_NEAR(source_.duration(), movie().pictures * movie().frameTime(), 0.002);
  EXPECT_EQ(movieLength(movie().path(), {}), source_.duration());
}

TEST_P(Pictures, AreTheSameWhenTheMovieIsOpenedOnceMore) {
  FrameSource again;
  ASSERT_EQ(again.open(movie().path()), "");
  EXPECT_EQ(again.frameTime(), source_.frameTime());
  EXPECT_EQ(again.size().width, source_.size().width);
  EXPECT_EQ(again.shownSize().height, source_.shownSize().height);
  for (int i = 0; i < 60; ++i) {
    const int k = randomNumber();
    ASSERT_EQ(numberAt(again, k * movie().frameTime()), k);
  }
  EXPECT_EQ(numberAt(again, 0), 0);
  EXPECT_EQ(again.duration(), source_.duration());
}

TEST_P(Pictures, ComeFromTheCacheWhenSteppedBack) {
  const bool eachIsKey = movie().name == std::string("mjpeg-23976.avi");
  const int k = movie().pictures - 1;
  numberAt(k * movie().frameTime());
  const int before = source_.seeks();
  for (int back = 0; back < 12; ++back) numberAt((k - back) * movie().frameTime());
  EXPECT_LE(source_.seeks() - before, eachIsKey ? 12 : 4);
}

TEST(FrameSource, BeginsAtAKeyThatIsNearerThanThePictureBefore) {
  const double frame = 1001.0 / 24000;
  FrameSource source;
  ASSERT_EQ(source.open(test::moviePath("mpeg2-23976.mpg")), "");  // a key every 15
  struct Way {
    double pictures;
    int starts;
  };
  double position = 20;
  source.at(position * frame);
  for (const Way& way : {Way{10, 0}, {30, 1}, {17, 0}, {25, 1}}) {
    const int before = source.seeks();
    position += way.pictures;
    ASSERT_NE(source.at(position * frame), nullptr);
    EXPECT_EQ(source.seeks() - before, way.starts) << position;
  }
}

INSTANTIATE_TEST_SUITE_P(Movies, Pictures, ::testing::ValuesIn(test::numberedMovies()),
                         [](const auto& movie) {
                           std::string name = movie.param.name;
                           for (char& c : name) c = std::isalnum(c) != 0 ? c : '_';
                           return name;
                         });

class OddPictures : public ::testing::TestWithParam<test::OddMovie> {
 protected:
  static void expectAll(FrameSource& source) {
    const test::OddMovie& movie = GetParam();
    PictureConverter converter;
    EXPECT_NEAR(source.frameTime(), 1 / movie.rate, 1e-9);
    EXPECT_NEAR(source.duration(), movie.times.back() + 1 / movie.rate, 0.6 / movie.rate);
    const std::size_t count = movie.times.size();
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t k = i * 67 % count;
      const double start = movie.times[k];
      for (const double t : {start, std::round(start * 1000) / 1000, start + 0.4 / movie.rate}) {
        const auto picture = source.at(t);
        ASSERT_NE(picture, nullptr) << t;
        ASSERT_EQ(test::numberIn(*converter.convert(*picture->frame)), movie.numbers[k]) << t;
      }
    }
    EXPECT_LT(source.seeks(), static_cast<int>(count) * 2);
  }
};

// In an order in which each is far from the one before, so that nothing but the seek finds it.
TEST_P(OddPictures, AreThoseOfTheirTimesBeforeAndAfterASaveInSmallFilesAndLargeOnes) {
  const test::OddMovie& movie = GetParam();
  for (const auto firstLook : {FrameSource::kFirstLook, std::chrono::milliseconds(0)}) {
    const test::TemporaryFolder folder;
    const std::string path = movie.make(folder);
    for (const char* opening : {"first opening", "second, which knows what the first one read"}) {
      SCOPED_TRACE(opening);
      FrameSource source(firstLook);
      ASSERT_EQ(source.open(path), "");
      expectAll(source);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Movies, OddPictures, ::testing::ValuesIn(test::oddMovies()),
                         [](const auto& movie) { return std::string(movie.param.name); });

TEST(FrameSource, TakesAnEmptyPacketForThePictureBefore) {
  FrameSource source;
  PictureConverter converter;
  ASSERT_EQ(source.open(test::moviePath("repeated-25.avi")), "");
  const int numbers[] = {0, 0, 1, 2};
  for (int k = 0; k < 4; ++k) {
    EXPECT_EQ(test::numberIn(*converter.convert(*source.at(k / 25.0)->frame)), numbers[k]);
  }
  EXPECT_NEAR(source.duration(), 51 / 25.0, 1e-6);
}

TEST(FrameSource, ComesToAPictureThatIsShownForLongAndOnWhichNoOtherLeans) {
  FrameSource source;
  PictureConverter converter;
  ASSERT_EQ(source.open(test::moviePath("lacking-25.mp4")), "");
  EXPECT_EQ(test::numberIn(*converter.convert(*source.at(4.3)->frame)), 61);
}

TEST(FrameSource, RefusesStampsThatOccurTwice) {
  const test::TemporaryFolder folder;
  FrameSource source;
  EXPECT_EQ(source.open(test::makeFallingMovie(folder)),
            "The times of its pictures cannot be told.");
}

TEST(FrameSource, TellsWhatIsLeftOfACutMovie) {
  const test::TemporaryFolder folder;
  for (const char* name : {"mpeg1-noise-25.mpg", "mjpeg-23976.avi", "h264-b-noise-50.mkv"}) {
    const double whole = movieLength(test::moviePath(name), {});
    const double half = movieLength(test::makeCutMovie(folder, name, 0.5), {});
    EXPECT_GT(half, whole * 0.35) << name;
    EXPECT_LT(half, whole * 0.65) << name;
  }
}

TEST(FrameSource, SurvivesDamageInTheMiddle) {
  const test::TemporaryFolder folder;
  for (const auto& movie : test::numberedMovies()) {
    const std::string path = test::makeHoledMovie(folder, movie.name);
    FrameSource source;
    if (!source.open(path).empty()) continue;  // the hole may hit the index of an mp4
    const auto start = std::chrono::steady_clock::now();
    for (double t = 0; t < 8; t += 0.37) EXPECT_NE(source.at(t), nullptr) << movie.name << " " << t;
    EXPECT_GT(source.duration(), 0) << movie.name;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3)) << movie.name;
  }
}

TEST(FrameSource, ShowsTheColoursOfTheMovie) {
  FrameSource source;
  PictureConverter converter;
  ASSERT_EQ(source.open(test::moviePath("h264-b-23976.mp4")), "");
  const auto picture = converter.convert(*source.at(0)->frame);
  const int expected[4][3] = {{0, 0, 254}, {0, 255, 0}, {255, 0, 0}, {128, 128, 128}};
  for (int colour = 0; colour < 4; ++colour) {
    for (int channel = 0; channel < 3; ++channel) {
      const int at = (104 * 160 + 20 + 40 * colour) * 4 + channel;
      EXPECT_NEAR(picture->pixels[static_cast<std::size_t>(at)], expected[colour][channel], 8);
    }
  }
}

}  // namespace
}  // namespace velra
