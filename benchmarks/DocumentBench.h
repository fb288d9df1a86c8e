// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// Makes documents of 1,000, 10,000 and 50,000 objects in a folder and measures opening, saving,
/// searching and removing, as ratios within this run.
std::vector<Measure> measureDocuments(const std::string& folder);

}  // namespace velra::bench
