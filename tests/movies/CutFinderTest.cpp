// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/CutFinder.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/movie/MediaGraph.h"

namespace velra {

namespace {

const std::string kMovies = VELRA_SOURCE_DIR "/tests/data/movies/";

std::string foundIn(const std::string& movie, const ShotSearch& search) {
  const FoundShots found = findCuts(kMovies + movie, search, {}, {});
  std::string text = found.reason;
  for (const FoundShot& shot : found.shots) {
    EXPECT_EQ(shot.picture->width, 128);
    text += std::to_string(std::lround(shot.start * 1000)) + "-" +
            std::to_string(std::lround(shot.end * 1000)) + " ";
  }
  return text;
}

// The movie has grain, motion, two shots that hardly differ, a flash and a fade.
TEST(CutFinder, FindsEveryCutAndNoFalseOne) {
  const std::string all =
      "0-2000 2000-5000 5000-7000 7000-9000 9000-13000 13000-16000 16000-18000 ";
  for (const double threshold : {3.0, 5.0, 7.0, 9.0}) {
    for (const double shortest : {0.5, 1.0, 1.9}) {
      EXPECT_EQ(foundIn("shots-25.mpg", {.threshold = threshold, .shortest = shortest}), all);
    }
  }
  std::stop_source stop;
  double told = 0;
  findCuts(kMovies + "shots-25.mpg", {}, stop.get_token(), [&](double share) {
    told = share;
    if (share > 0.4) stop.request_stop();
  });
  EXPECT_NEAR(told, 0.4, 0.01);
  EXPECT_EQ(foundIn("shots-25.mpg", {.threshold = 20, .shortest = 3}),
            "0-5000 5000-9000 9000-13000 13000-18000 ");
  EXPECT_EQ(foundIn("shots-25.mpg", {.from = 4, .to = 7.2}), "4000-5000 5000-7200 ");
  EXPECT_EQ(foundIn("shots-25.mpg", {.from = 30, .to = 40}), "The movie has no pictures there.");
  EXPECT_NE(foundIn("sound-only.mp3", {}), "");
  EXPECT_EQ(foundIn("lacking-25.mp4", {.threshold = 48}), "0-5160 5160-6000 ");
}

}  // namespace

}  // namespace velra
