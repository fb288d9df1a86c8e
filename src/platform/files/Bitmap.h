// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

struct PictureFrame;

/// Writes a picture as a 24-bit bitmap file, rows from the bottom, as every program reads it. The
/// failure's description, "" on success; nothing is left of a file that could not be written whole.
std::string writeBitmap(const PictureFrame& picture, const std::string& path);

}  // namespace velra
