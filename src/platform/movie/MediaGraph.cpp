// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MediaGraph.h"

#include "platform/movie/MovieLibrary.h"

namespace velra {

std::unique_ptr<MediaGraph> makeMediaGraph() {
  return movieLibrary().graph();
}

}  // namespace velra
