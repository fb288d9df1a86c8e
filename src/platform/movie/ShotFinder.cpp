// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/ShotFinder.h"

#include "platform/movie/MovieLibrary.h"

namespace velra {

FoundShots findShots(const std::string& movie, const ShotSearch& search,
                     const std::stop_token& stop, const std::function<void(double)>& tell) {
  return movieLibrary().shots(movie, search, stop, tell);
}

}  // namespace velra
