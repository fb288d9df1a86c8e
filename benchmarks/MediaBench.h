// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// Makes movies of 1280 x 720 in a folder, unless they are there, and measures what a person at the
/// expression tool waits for. Nothing when there is no ffmpeg to make them.
std::vector<Measure> measureMedia(const std::string& folder);

}  // namespace velra::bench
