// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieProbe.h"

#include "platform/movie/FrameSource.h"
#include "platform/sound/SoundLength.h"

namespace velra {

double dMovieDuration(const std::string& path, const std::stop_token& stop) {
  FrameSource source;
  if (source.open(path, stop).empty()) return source.duration();
  return stop.stop_requested() || source.hasPictures() ? 0 : soundLength(path);
}

}  // namespace velra
