// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/NumberedMovie.h"

namespace velra::test {

namespace {

constexpr int kColumns = 10;
constexpr double kRows = 7;  // three of bits, three of their complement, one of colours

// Mean brightness around the middle of a field, from its green.
bool isBright(const PictureFrame& picture, int column, double row) {
  const int x = static_cast<int>((column + 0.5) * picture.width / kColumns);
  const int y = static_cast<int>(row * picture.height / kRows);
  int sum = 0;
  for (int dy = -2; dy < 2; ++dy) {
    for (int dx = -2; dx < 2; ++dx) {
      const int pixel = (y + dy) * picture.width + x + dx;
      sum += picture.pixels[4 * static_cast<std::size_t>(pixel) + 1];
    }
  }
  return sum / 16 > 127;
}

}  // namespace

std::string moviePath(const std::string& name) {
  return std::string(VELRA_SOURCE_DIR) + "/tests/data/movies/" + name;
}

std::string NumberedMovie::path() const {
  return moviePath(name);
}

const std::vector<NumberedMovie>& numberedMovies() {
  static const std::vector<NumberedMovie> movies{
      {"mpeg4-25.avi", 25, 1, 150},
      {"mpeg4-b-2997.avi", 30000, 1001, 150},
      {"mjpeg-23976.avi", 24000, 1001, 96},
      {"msmpeg4-50.avi", 50, 1, 250},
      {"mpeg1-noise-25.mpg", 25, 1, 200},
      {"mpeg1-50.mpg", 50, 1, 200},
      {"mpeg2-noise-2997.mpeg", 30000, 1001, 180},
      {"mpeg2-23976.mpg", 24000, 1001, 144},
      {"wmv2-noise-25.asf", 25, 1, 150},
      {"wmv2-2997.wmv", 30000, 1001, 150},
      {"h264-b-23976.mp4", 24000, 1001, 144},
      {"h264-b-noise-50.mkv", 50, 1, 250},
  };
  return movies;
}

int numberIn(const PictureFrame& picture) {
  int number = 0;
  for (int column = 0; column < kColumns; ++column) {
    const bool bit = isBright(picture, column, 1.5);
    if (bit == isBright(picture, column, 4.5)) return -1;
    if (bit) number |= 1 << column;
  }
  return number;
}

}  // namespace velra::test
