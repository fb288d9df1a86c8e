// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velra::test {

/// A movie whose container tells less than it should, or something else. `make` writes it into a
/// folder and gives its path.
struct OddMovie {
  const char* name;
  std::function<std::string(const TemporaryFolder&)> make;
  double rate;
  std::vector<int> numbers;   // that its pictures carry, as they are shown
  std::vector<double> times;  // of their starts
};

const std::vector<OddMovie>& oddMovies();

inline void PrintTo(const OddMovie& movie, std::ostream* out) {
  *out << movie.name;
}

/// Movies with sound whose pictures cannot be decoded.
std::vector<std::string> makeBlindMovies(const TemporaryFolder& folder);

/// A movie whose stamps occur twice: they begin anew in the middle.
std::string makeFallingMovie(const TemporaryFolder& folder);

/// A movie of 160 x 112 pixels that is meant to be seen as 16 : 9.
std::string makeWideMovie(const TemporaryFolder& folder);

/// A movie of 16,000 x 16,000 pixels.
std::string makeHugeMovie(const TemporaryFolder& folder);

}  // namespace velra::test
