// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/files/Files.h"

namespace velra {

/// Checks the head of a bitmap file, so that a bad one is found when it is opened and not when it
/// is drawn. What the file was then; kFileNotFound or kInvalidPicture with the path.
FileStamp checkBitmap(const std::string& path);

}  // namespace velra
