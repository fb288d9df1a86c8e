// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class MovieLibrary;

/// The function by which the module of the movies gives its library, which lasts as long as the
/// process; null where the version is another than its own. It is all that the module lets see, and
/// the one thing that stays the same from version to version.
using MovieEntry = MovieLibrary* (*)(const char* version);
inline constexpr const char* kMovieEntry = "velraMovieLibrary";

/// Loads a module, for good. Null on failure; `reason` is then one sentence.
MovieLibrary* loadMovieModule(const std::string& file, const std::string& version,
                              std::string& reason);

}  // namespace velra
