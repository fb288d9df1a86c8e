// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velra::test {

/// Files that are no movies, by their one defect: paths of files in a folder, some of which are
/// missing on purpose. Each must be refused with a sentence.
std::vector<std::string> makeNoMovies(const TemporaryFolder& folder);

/// A damaged copy of a movie of tests/data/movies: cut after a share of its bytes.
std::string makeCutMovie(const TemporaryFolder& folder, const std::string& name, double share);

/// The same with a hole of zeros in the middle, a tenth of the file long.
std::string makeHoledMovie(const TemporaryFolder& folder, const std::string& name);

}  // namespace velra::test
