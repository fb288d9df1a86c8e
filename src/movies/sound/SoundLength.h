// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// The length in seconds of the sound of a file, for files without pictures; 0 for any failure.
double soundLength(const std::string& path);

}  // namespace velra
