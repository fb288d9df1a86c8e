// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// Makes a document of 50,000 objects in a folder, and measures what keeping its unsaved work costs
/// the thread of the windows, and what the store costs a save.
std::vector<Measure> measureRescue(const std::string& folder);

}  // namespace velra::bench
