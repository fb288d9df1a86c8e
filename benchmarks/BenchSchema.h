// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra::bench {

/// Writes the schema of the generated documents and returns its path.
std::string makeSchema(const std::string& folder);

}  // namespace velra::bench
