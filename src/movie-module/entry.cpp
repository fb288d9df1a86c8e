// SPDX-License-Identifier: GPL-3.0-or-later
#include <string_view>

#include "movies/DecodedMovies.h"

/// What the program looks for in the module, `kMovieEntry`.
extern "C" [[gnu::visibility("default")]] velra::MovieLibrary* velraMovieLibrary(
    const char* version) {
  return version == std::string_view(VELRA_VERSION) ? &velra::decodedMovies() : nullptr;
}
