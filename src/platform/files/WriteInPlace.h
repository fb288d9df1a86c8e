// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "platform/files/Files.h"

namespace velra {

/// writeFileInPlace with the system's error number; 0 on success.
int writeInPlace(const std::string& path, std::string_view bytes);

/// writeNewFile with the system's error number; 0 on success.
int writeNew(const std::string& path, std::string_view bytes, NewFileIs seen);

}  // namespace velra
