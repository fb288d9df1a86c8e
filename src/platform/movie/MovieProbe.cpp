// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieProbe.h"

#include "platform/movie/MovieLibrary.h"

namespace velra {

double dMovieDuration(const std::string& path, const std::stop_token& stop) {
  return movieLibrary().length(path, stop);
}

}  // namespace velra
