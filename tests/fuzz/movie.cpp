// SPDX-License-Identifier: GPL-3.0-or-later

// A movie file: its size, its length, and a still in its middle.

#include "base/RunTimeError.h"
#include "fuzz/FuzzSession.h"
#include "platform/movie/FrameGrabber.h"
#include "platform/movie/MovieProbe.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  const std::string movie = session.file(data, size, "movie");
  try {
    const double length = velra::dMovieDuration(movie);
    velra::fuzz::require(length >= 0);
    velra::grabFrame(movie, length / 2, {32, 32}, session.folder / "still.bmp");
  } catch (const velra::RunTimeError&) {
    // It is no movie.
  }
  return 0;
}
