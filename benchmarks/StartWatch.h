// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace velra::bench {

/// Has a program started on a display and ends it again. The milliseconds from the system's call
/// to a window of at least 400 x 400 pixels that shows something in the middle half of its height,
/// as a list does that is not empty; nothing when none comes within 15 seconds. The environment
/// has the form NAME=VALUE.
std::optional<double> timeToWindow(const std::string& display,
                                   const std::vector<std::string>& command,
                                   const std::vector<std::string>& environment);

}  // namespace velra::bench
