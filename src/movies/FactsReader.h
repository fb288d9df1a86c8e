// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieFacts.h"

namespace velra {

/// What `movieFacts` gives.
MovieFacts readFacts(const std::string& path);

}  // namespace velra
