// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundReader.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "movies/FrameSource.h"
#include "support/NumberedMovie.h"

namespace velra {
namespace {

// Where in seconds the first loud sample is; the movies' sound is a burst at each full second.
double firstBurst(SoundReader& reader, double from, double length) {
  reader.seek(from);
  std::vector<std::int16_t> samples;
  std::vector<std::int16_t> all;
  const auto wanted = static_cast<std::size_t>(length * SoundReader::kRate) * 2;
  while (all.size() < wanted && reader.read(samples)) {
    all.insert(all.end(), samples.begin(), samples.end());
  }
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (std::abs(all[i]) > 4000) {
      return from + static_cast<double>(i) / 2 / SoundReader::kRate;
    }
  }
  return -1;
}

TEST(SoundReader, StandsWhereThePicturesAre) {
  struct Row {
    const char* name;
    double delay;  // of the encoder, which the container does not tell
  };
  const Row rows[] = {
      {"mpeg4-25.avi", 0.025},        {"mjpeg-23976.avi", 0},     {"mpeg1-noise-25.mpg", 0},
      {"mpeg2-noise-2997.mpeg", 0},   {"wmv2-noise-25.asf", 0},   {"h264-b-23976.mp4", 0},
      {"h264-b-noise-50.mkv", 0.025}, {"repeated-25.avi", 0.025}, {"leaping-25.mp4", 0.025},
      {"leaping-25.mkv", 0.025},      {"leaping-25.flv", 0.025}};
  for (const Row& row : rows) {
    const std::string path = test::moviePath(row.name);
    FrameSource pictures;
    ASSERT_EQ(pictures.open(path), "");
    SoundReader reader;
    ASSERT_EQ(reader.open(path, pictures.stampLine()), "");
    for (const double from : {1.5, 0.7, 0.2, 4.5, 2.7, 1.5}) {
      if (from > pictures.duration() - 1) continue;
      const double burst = std::ceil(from);
      const double heard = firstBurst(reader, from, 1);
      EXPECT_NEAR(heard, burst, row.delay + 0.012) << row.name << " from " << from;
    }
  }
}

TEST(SoundReader, EndsAndRefuses) {
  SoundReader reader;
  ASSERT_EQ(reader.open(test::moviePath("sound-only.mp3"), std::nullopt), "");
  EXPECT_EQ(firstBurst(reader, 2.5, 10), -1);
  std::vector<std::int16_t> samples;
  EXPECT_FALSE(reader.read(samples));
  SoundReader silent;
  EXPECT_NE(silent.open(test::moviePath("mpeg4-b-2997.avi"), std::nullopt), "");
}

}  // namespace
}  // namespace velra
