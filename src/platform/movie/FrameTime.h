// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velra {

/// Seconds a picture. `stated` is what the file tells, often an average, and `usual` the distance
/// that most pictures have; both 0 when unknown. `tick` is that of the container, in seconds. 0
/// when nothing is known.
double chooseFrameTime(double stated, double usual, double tick, std::int64_t pictures);

}  // namespace velra
