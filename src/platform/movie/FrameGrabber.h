// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

struct PixelSize {
  int width = 0;
  int height = 0;
};

/// Writes the picture of a movie that is shown at a time (seconds) into a 24-bit bitmap of the
/// given size in pixels, of the movie's own for 0. Raises a run-time error with a sentence that
/// names the movie or the target that refuses.
void grabFrame(const std::string& path, double seconds, PixelSize size,
               const std::string& targetBmp);

}  // namespace velra
