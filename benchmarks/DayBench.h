// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// A day of work in the real windows over a document of 50,000 objects, with the longest pause of
/// each step: printed as the day goes, and the worst of them beside its budget.
std::vector<Measure> measureDay(const std::string& folder);

}  // namespace velra::bench
