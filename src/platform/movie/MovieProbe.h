// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stop_token>
#include <string>

namespace velra {

/// The length of a movie in seconds, from its first picture to the end of its last; 0 for any
/// failure. `stop` lets it fail soon.
double dMovieDuration(const std::string& path, const std::stop_token& stop = {});

}  // namespace velra
