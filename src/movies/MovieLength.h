// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stop_token>
#include <string>

namespace velra {

/// The length of a movie or of sound alone, as `dMovieDuration` gives it.
double movieLength(const std::string& path, const std::stop_token& stop);

}  // namespace velra
