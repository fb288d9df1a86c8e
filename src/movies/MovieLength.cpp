// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieLength.h"

#include "movies/FrameSource.h"
#include "movies/sound/SoundLength.h"

namespace velra {

double movieLength(const std::string& path, const std::stop_token& stop) {
  FrameSource source;
  if (source.open(path, stop).empty()) return source.duration();
  return stop.stop_requested() || source.hasPictures() ? 0 : soundLength(path);
}

}  // namespace velra
