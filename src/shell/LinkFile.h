// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;

/// The first line of a file that names an object of a server, without its blanks. A missing file is
/// told of in a box; it, and any other failure, gives "".
std::string strReadFirstLine(ApplicationModule& app, const std::string& path);

}  // namespace velra
