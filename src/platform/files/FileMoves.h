// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "platform/files/Files.h"

namespace velra {

/// Raise a run-time error on failure. Moving refuses an existing destination, copying replaces it.
void MoveFileTo(const std::string& source, const std::string& destination);
void CopyFileTo(const std::string& source, const std::string& destination);

/// The same to a path where nothing lies.
void CopyToNewFile(const std::string& source, const std::string& destination,
                   NewFileIs seen = NewFileIs::SeenWhole);

/// Writes a new file beside the old one and puts it in its place, so that a crash leaves one or the
/// other. For settings, never for objects. The failure's description or "".
std::string replaceFile(const std::string& path, std::string_view bytes);

}  // namespace velra
