// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// One line that no other process on any machine has: host, boot, number and start of this one.
std::string processIdentity();

/// False when the process of that line has certainly ended. Of another machine's nothing is known,
/// so that it counts as running.
bool mayBeRunning(const std::string& identity);

}  // namespace velra
