// SPDX-License-Identifier: GPL-3.0-or-later

// A movie file: its size, its length, and a still in its middle.

#include "fuzz/FuzzSession.h"
#include "movies/DecodedMovies.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  const std::string movie = session.file(data, size, "movie");
  velra::MovieLibrary& movies = velra::decodedMovies();
  const double length = movies.length(movie, {});
  velra::fuzz::require(length >= 0);
  std::string reason;
  if (const auto stills = movies.stills(movie, reason)) stills->at(length / 2, {32, 32});
  return 0;
}
