// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// Shows a Version of 1,000 and one of 50,000 segments in the tree of the real main window, drawn
/// into memory, and measures what a person waits for.
std::vector<Measure> measureTrees(const std::string& folder);

}  // namespace velra::bench
