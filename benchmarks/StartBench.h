// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// Starts the program with the sample, and KeePassXC, an application of the toolkit's version
/// before, in turns on a display of its own. Nothing where that is not installed.
std::vector<Measure> measureStart(const std::string& folder);

}  // namespace velra::bench
