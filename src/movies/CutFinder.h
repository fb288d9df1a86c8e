// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/ShotFinder.h"

namespace velra {

/// What `findShots` gives.
FoundShots findCuts(const std::string& movie, const ShotSearch& search, const std::stop_token& stop,
                    const std::function<void(double)>& tell);

}  // namespace velra
