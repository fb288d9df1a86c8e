#include "platform/MovieProbe.h"

#include "platform/FrameSource.h"
#include "platform/SoundLength.h"

namespace velra {

double dMovieDuration(const std::string& path) {
  FrameSource source;
  return source.open(path).empty() ? source.duration() : soundLength(path);
}

}  // namespace velra
