// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieLibrary.h"

namespace velra {

/// The library that decodes. The process has one, since what it keeps of movies is kept once.
MovieLibrary& decodedMovies();

}  // namespace velra
