// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra::bench {

/// Reads and parses every XML file below a folder with one libxml2 context and drops it: what no
/// opening of these files can be faster than.
void plainParse(const std::string& folder);

/// The bytes of these files.
double plainBytes(const std::string& folder);

}  // namespace velra::bench
