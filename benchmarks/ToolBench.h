// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// What a person does in the tool's window over an Audio of 1,000 segments with a transcript of
/// 20,000 words; each with the painting that follows. Needs a QApplication, and no folder.
std::vector<Measure> measureTool(const std::string& folder);

}  // namespace velra::bench
