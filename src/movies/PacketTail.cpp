// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PacketTail.h"

#include <algorithm>
#include <chrono>

#include "movies/LibAv.h"
#include "movies/MovieInput.h"

namespace velra {

namespace {

constexpr std::chrono::seconds kTailLimit{3};
constexpr double kTailSeconds = 2;

}  // namespace

PacketTail readTail(MovieInput& input) {
  const auto stop = std::chrono::steady_clock::now() + kTailLimit;
  const AvPacket packet(av_packet_alloc());
  PacketTail tail;
  while (std::chrono::steady_clock::now() < stop && input.read(*packet)) {
    if ((packet->flags & AV_PKT_FLAG_DISCARD) != 0) continue;  // an edit hides it
    if (packet->pts == kNoTime) {
      tail.missing = true;
    } else if (!tail.any || packet->pts >= tail.last) {
      tail.last = packet->pts;
      tail.duration = packet->duration;
    }
    tail.any = true;
  }
  return tail;
}

PacketTail findTail(MovieInput& input, std::int64_t firstTicks) {
  const double from = input.claimedLength() - kTailSeconds;
  if (from > 0) {
    const double tick = av_q2d(input.stream()->time_base);
    if (input.seek(firstTicks + static_cast<std::int64_t>(from / tick))) {
      if (const PacketTail tail = readTail(input); tail.any) return tail;
    }
  }
  PacketTail tail;
  input.toStart(firstTicks, [&] {
    tail = readTail(input);
    return tail.any;
  });
  return tail;
}

}  // namespace velra
