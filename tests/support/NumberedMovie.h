// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "platform/movie/MediaGraph.h"

namespace velra::test {

/// A movie of tests/data/movies: each picture carries its number.
struct NumberedMovie {
  const char* name;
  int rateNumerator;
  int rateDenominator;
  int pictures;

  double rate() const { return static_cast<double>(rateNumerator) / rateDenominator; }
  double frameTime() const { return static_cast<double>(rateDenominator) / rateNumerator; }
  std::string path() const;
};

std::string moviePath(const std::string& name);

const std::vector<NumberedMovie>& numberedMovies();

inline void PrintTo(const NumberedMovie& movie, std::ostream* out) {
  *out << movie.name;
}

/// The number that a picture carries; -1 when it is damaged or no such picture.
int numberIn(const PictureFrame& picture);

}  // namespace velra::test
