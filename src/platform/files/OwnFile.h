// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// True when a path leads to a regular file directly inside a folder, whatever links stand on the
/// way to both, and its name begins with `prefix`. A link is never such a file.
bool isOwnFile(const std::string& path, const std::string& folder, const std::string& prefix);

}  // namespace velra
