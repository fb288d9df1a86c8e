// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// A picture that stands in a text of HTML itself.
struct EmbeddedPicture {
  std::string uri;  // "data:image/jpeg;base64,..."; "" when the file is no picture
  int width = 0;    // pixels
  int height = 0;
};

/// A bitmap file as a small JPEG of at most so many pixels in width.
EmbeddedPicture embeddedPicture(const std::string& path, int mostWidth);

}  // namespace velra
