// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundLength.h"

#include "movies/LibAv.h"
#include "movies/MovieInput.h"
#include "movies/PacketTail.h"
#include "movies/TrackDecoder.h"

namespace velra {

double soundLength(const std::string& path) {
  MovieInput input;
  TrackDecoder decoder;
  if (!input.open(path).empty() || !input.choose(MovieTrack::Sound)) return 0;
  const AVStream* stream = input.stream();
  if (!decoder.open(*stream).empty()) return 0;
  const AvFrame first = decoder.next(input);
  if (!first) return 0;
  const std::int64_t start =
      first->best_effort_timestamp == kNoTime ? 0 : first->best_effort_timestamp;
  const PacketTail tail = findTail(input, start);
  const double ticks = static_cast<double>(tail.last) + static_cast<double>(tail.duration) -
                       static_cast<double>(start);
  // Stamps that fall end before they began.
  if (!tail.any || tail.missing || ticks < 0) return input.claimedLength();
  return ticks * av_q2d(stream->time_base);
}

}  // namespace velra
