// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace velra {

class PictureReader;

/// Seconds a picture. `stated` is what the file tells, often an average, and `usual` the distance
/// that most pictures have; both 0 when unknown. `tick` is that of the container, in seconds. 0
/// when nothing is known.
double chooseFrameTime(double stated, double usual, double tick, std::int64_t pictures);

/// The median of the distances between the first pictures of a movie in seconds; nothing when there
/// are none. Moves the reader.
std::optional<double> medianDistance(PictureReader& reader);

}  // namespace velra
