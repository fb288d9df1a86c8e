// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// A picture in a file that was found good when the object opened. The pixels are read when it is
/// first drawn, by the window that draws it.
struct Picture {
  std::string path;  // absolute; empty for no picture
  int width = 0;     // wanted size in pixels; 0 for the file's own
  int height = 0;

  bool empty() const { return path.empty(); }
  bool operator==(const Picture& other) const = default;
};

}  // namespace velra
