// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;

/// The path of the tool that tells about the system, as the machine-wide store names it; "" when it
/// names none that exists.
std::string systemInfoTool(const ApplicationModule& app);

}  // namespace velra
