// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieProbe.h"

#include "platform/movie/FrameSource.h"
#include "platform/sound/SoundLength.h"

namespace velra {

double dMovieDuration(const std::string& path) {
  FrameSource source;
  if (source.open(path).empty()) return source.duration();
  return source.hasPictures() ? 0 : soundLength(path);
}

}  // namespace velra
