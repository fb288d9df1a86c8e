// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "platform/movie/Thumbnail.h"

namespace velra {

/// The bytes of a bitmap file as a JPEG of at most so many pixels in width.
EmbeddedPicture smallJpeg(std::string_view bitmap, int mostWidth);

}  // namespace velra
