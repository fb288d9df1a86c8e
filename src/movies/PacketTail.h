// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velra {

class MovieInput;

/// What the packets of a track say about its end.
struct PacketTail {
  bool any = false;           // packets came
  bool missing = false;       // one had no time, so the end is uncertain
  std::int64_t last = 0;      // the greatest time, in ticks
  std::int64_t duration = 0;  // of that packet, in ticks; 0 when unknown
};

/// Reads the packets from here to the end without decoding them; gives up after three seconds with
/// what it knows.
PacketTail readTail(MovieInput& input);

/// The end of the chosen track, as `readTail` tells it: the container's claimed length says where
/// to look, and a whole pass is made when there is none or nothing lies there. `firstTicks` is the
/// track's first time. Leaves the input anywhere.
PacketTail findTail(MovieInput& input, std::int64_t firstTicks);

}  // namespace velra
