// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

struct PixelSize {
  int width = 0;
  int height = 0;
};

/// The size of a movie's pictures. A movie that cannot be opened raises a run-time error with a
/// sentence that names it.
PixelSize movieSize(const std::string& path);

/// Writes the picture of a movie that is shown at a time (seconds) into a 24-bit bitmap of the
/// given size in pixels. Raises a run-time error when the movie or the target refuses.
void grabFrame(const std::string& path, double seconds, PixelSize size,
               const std::string& targetBmp);

/// Checks the head of a bitmap file, so that a bad one is found when it is opened and not when it
/// is drawn. kFileNotFound or kInvalidPicture with the path.
void checkBitmap(const std::string& path);

}  // namespace velra
