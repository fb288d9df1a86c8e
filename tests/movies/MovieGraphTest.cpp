// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieGraph.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <thread>

#include "movies/BadMovies.h"
#include "movies/MovieLength.h"
#include "movies/OddMovies.h"
#include "movies/PlayedMovie.h"
#include "support/NumberedMovie.h"

namespace velra {
namespace {

using test::PlayedMovie;

std::ptrdiff_t entriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}

class MovieGraphTest : public ::testing::Test {
 protected:
  test::SoundDriver driver_{"dummy"};
};

TEST_F(MovieGraphTest, ShowsThePictureOfAPositionAndGivesItBack) {
  for (const auto& row : test::numberedMovies()) {
    PlayedMovie movie;
    ASSERT_EQ(movie.open(row.path()), "") << row.name;
    EXPECT_EQ(movie.number(), 0) << row.name;
    for (const int k : {17, 90, 3, 91}) {
      const double position = std::nextafter(k * row.frameTime(), 0);
      movie.graph().setCurrentPosition(position);
      EXPECT_EQ(movie.graph().CurrentPosition(), position);
      EXPECT_TRUE(movie.waitForNumber(k)) << row.name << " " << k;
      EXPECT_EQ(movie.graph().CurrentPosition(), position);
    }
  }
}

TEST_F(MovieGraphTest, TakesTheLastOfManyPositions) {
  PlayedMovie movie;
  ASSERT_EQ(movie.open(test::moviePath("wmv2-noise-25.asf")), "");
  for (int i = 0; i < 200; ++i) movie.graph().setCurrentPosition((i * 37 % 150) * 0.04);
  movie.graph().setCurrentPosition(4.2);
  EXPECT_EQ(movie.graph().CurrentPosition(), 4.2);
  EXPECT_TRUE(movie.waitForNumber(105));
  EXPECT_LT(movie.shown().size(), 200U);
}

// With a card, without one, and without sound.
TEST_F(MovieGraphTest, PlaysInOrderToTheEnd) {
  struct Row {
    const char* name;
    const char* driver;
  };
  const Row rows[] = {{"mpeg1-noise-25.mpg", "dummy"}, {"mpeg1-noise-25.mpg", "no such driver"},
                      {"mpeg4-b-2997.avi", "dummy"},   {"h264-b-noise-50.mkv", "dummy"},
                      {"wmv2-noise-25.asf", "dummy"},  {"mjpeg-23976.avi", "no such driver"}};
  for (const Row& row : rows) {
    const test::SoundDriver driver(row.driver);
    PlayedMovie movie;
    ASSERT_EQ(movie.open(test::moviePath(row.name)), "");
    MediaGraph& graph = movie.graph();
    graph.setCurrentPosition(graph.Duration() - 0.6);
    const int first = static_cast<int>((graph.Duration() - 0.599) / graph.AvgTimePerFrame());
    ASSERT_TRUE(movie.waitForNumber(first)) << row.name;
    movie.forgetShown();
    graph.Run();
    ASSERT_TRUE(movie.waitForEnd()) << row.name;
    const std::vector<int> shown = movie.shown();
    EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end())) << row.name;
    EXPECT_GE(shown.front(), first) << row.name;  // a busy machine may be late for the first
    EXPECT_EQ(shown.back(), std::lround(graph.Duration() / graph.AvgTimePerFrame()) - 1);
    EXPECT_EQ(graph.CurrentPosition(), graph.Duration()) << row.name;
  }
}

TEST_F(MovieGraphTest, PausesOnThePictureShownAndGoesOnFromThere) {
  PlayedMovie movie;
  ASSERT_EQ(movie.open(test::moviePath("mpeg4-25.avi")), "");
  MediaGraph& graph = movie.graph();
  for (int round = 0; round < 4; ++round) {
    movie.forgetShown();
    // A picture that is still sought when play begins must not come after its end.
    const double start = graph.CurrentPosition();
    graph.setCurrentPosition(5);
    graph.setCurrentPosition(start);
    graph.Run();
    ASSERT_TRUE(movie.waitForShown(5));
    round % 2 == 0 ? graph.Pause() : graph.Stop();
    const double position = graph.CurrentPosition();
    const int number = movie.number();
    EXPECT_EQ(std::lround(position * 25), number);
    EXPECT_GT(number, 0);
    for (int look = 0; look < 2000; ++look) ASSERT_EQ(movie.number(), number);
    graph.setCurrentPosition(position);
    graph.Pause();
    EXPECT_TRUE(movie.waitForNumber(number));
  }
}

TEST_F(MovieGraphTest, StaysWhereItIsWhenPausedBeforeAPictureCame) {
  PlayedMovie movie;
  ASSERT_EQ(movie.open(test::moviePath("msmpeg4-50.avi")), "");
  MediaGraph& graph = movie.graph();
  for (const int k : {140, 20, 199}) {
    const double position = k * 0.02 + 0.005;
    graph.Run();
    graph.setCurrentPosition(position);
    graph.Pause();
    EXPECT_EQ(graph.CurrentPosition(), position);
    EXPECT_TRUE(movie.waitForNumber(k));
    EXPECT_EQ(graph.CurrentPosition(), position);
  }
}

TEST_F(MovieGraphTest, PlaysSoundAlone) {
  PlayedMovie movie;
  ASSERT_EQ(movie.open(test::moviePath("sound-only.mp3")), "");
  MediaGraph& graph = movie.graph();
  EXPECT_EQ(graph.AvgTimePerFrame(), 0);
  EXPECT_EQ(graph.picture(), nullptr);
  EXPECT_NEAR(graph.Duration(), 3, 0.08);
  EXPECT_EQ(movieLength(test::moviePath("sound-only.mp3"), {}), graph.Duration());
  graph.setCurrentPosition(2.5);
  EXPECT_EQ(graph.CurrentPosition(), 2.5);
  graph.Run();
  ASSERT_TRUE(movie.waitUntil([&] { return graph.CurrentPosition() > 2.6; }));
  ASSERT_TRUE(movie.waitForEnd());
  EXPECT_EQ(graph.CurrentPosition(), graph.Duration());
}

TEST_F(MovieGraphTest, PlaysDamagedMoviesAsFarAsTheyGo) {
  const test::TemporaryFolder folder;
  for (const char* name : {"mpeg1-noise-25.mpg", "wmv2-noise-25.asf", "h264-b-noise-50.mkv"}) {
    for (const std::string& path :
         {test::makeHoledMovie(folder, name), test::makeCutMovie(folder, name, 0.4)}) {
      PlayedMovie movie;
      ASSERT_EQ(movie.open(path), "") << path;
      MediaGraph& graph = movie.graph();
      graph.setCurrentPosition(graph.Duration() - 0.5);
      graph.Run();
      EXPECT_TRUE(movie.waitForEnd()) << path;
    }
  }
}

TEST_F(MovieGraphTest, RefusesSoonWithASentenceAndStaysEmpty) {
  const test::TemporaryFolder folder;
  for (const std::string& path : test::makeNoMovies(folder)) {
    PlayedMovie movie;
    const auto start = std::chrono::steady_clock::now();
    const std::string reason = movie.graph().RenderFile(path, {});
    EXPECT_TRUE(reason.ends_with(".")) << path << ": " << reason;
    EXPECT_EQ(movieLength(path, {}), 0) << path;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3)) << path;
    movie.graph().Run();
    movie.graph().setCurrentPosition(1);
    EXPECT_EQ(movie.graph().Duration(), 0);
    EXPECT_EQ(movie.graph().picture(), nullptr);
  }
}

// Its sound could be played, but nobody would know why the picture stays black.
TEST_F(MovieGraphTest, RefusesAMovieWhosePicturesCannotBeDecoded) {
  const test::TemporaryFolder folder;
  for (const std::string& path : test::makeBlindMovies(folder)) {
    PlayedMovie movie;
    EXPECT_EQ(movie.graph().RenderFile(path, {}), "It holds no picture that can be decoded.")
        << path;
    EXPECT_EQ(movieLength(path, {}), 0) << path;
  }
  PlayedMovie huge;
  EXPECT_EQ(huge.graph().RenderFile(test::makeHugeMovie(folder), {}),
            "Its pictures are larger than 8192 x 4320 pixels.");
}

TEST_F(MovieGraphTest, PlaysInTheSizeThatIsShownAndStandsInItsOwn) {
  PlayedMovie movie;
  ASSERT_EQ(movie.open(test::moviePath("mpeg4-25.avi")), "");
  MediaGraph& graph = movie.graph();
  graph.setShownSize(80, 56);
  graph.Run();
  ASSERT_TRUE(movie.waitUntil([&] { return graph.picture()->width == 80; }));
  graph.Pause();
  ASSERT_TRUE(movie.waitUntil([&] { return graph.picture()->width == 160; }));
  EXPECT_EQ(std::lround(graph.CurrentPosition() * 25), movie.number());
  const test::TemporaryFolder folder;
  PlayedMovie wide;
  ASSERT_EQ(wide.open(test::makeWideMovie(folder)), "");
  EXPECT_EQ(wide.graph().videoWidth(), 199);
  EXPECT_EQ(wide.graph().videoHeight(), 112);
  EXPECT_EQ(wide.graph().picture()->width, 160);
}

TEST_F(MovieGraphTest, LeavesNothingBehind) {
  const auto useOnce = [](int round) {
    PlayedMovie movie;
    ASSERT_EQ(movie.graph().RenderFile(test::moviePath("mpeg4-25.avi"), {}), "");
    if (round % 2 == 0) movie.graph().Run();
    if (round % 4 == 0) movie.waitForShown(2);
    if (round % 3 == 0) movie.graph().setCurrentPosition(3);
  };
  useOnce(0);
  const auto threads = entriesOf("/proc/self/task");
  const auto files = entriesOf("/proc/self/fd");
  for (int round = 0; round < 100; ++round) useOnce(round);
  // The system lists a thread for a moment after it was joined.
  const auto stop = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  while (entriesOf("/proc/self/task") > threads && std::chrono::steady_clock::now() < stop) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  EXPECT_EQ(entriesOf("/proc/self/task"), threads);
  EXPECT_EQ(entriesOf("/proc/self/fd"), files);
}

}  // namespace
}  // namespace velra
