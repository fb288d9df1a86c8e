// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// Times the small pieces that all else is made of, for information: there are no budgets. Nothing
/// is returned.
std::vector<Measure> measurePieces(const std::string& folder);

}  // namespace velra::bench
