// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Measure.h"

namespace velra::bench {

/// A level of 2,000 segments of a Video in the tool's window, each with a key frame in a file of
/// its name: opening, cutting, selecting and scrolling, each with the painting that follows. Needs
/// a QApplication. The folder takes the pictures.
std::vector<Measure> measureStrip(const std::string& folder);

}  // namespace velra::bench
