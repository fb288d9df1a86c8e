// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "movies/LibAv.h"

namespace velra {

class MovieInput;

/// Decodes the chosen track of a movie: what comes out next, in the order in which it is shown or
/// heard. Damaged packets cost what they held and no more. One thread.
class TrackDecoder {
 public:
  /// "" on success, else one sentence.
  std::string open(const AVStream& stream);

  /// Pictures of two fields a second, as the stream itself states it; 0 when it does not, or before
  /// the first picture.
  AVRational rate() const;

  /// Pictures with stamps before this one, in ticks, are left out when no other leans on them.
  void leaveOutBefore(std::int64_t ticks) { wholeFrom_ = ticks; }

  /// To be called after each seek of the input.
  void flush();

  /// The first picture of a track, with less patience than for the next ones: null also when many
  /// packets have brought nothing.
  AvFrame first(MovieInput& input);

  /// The next picture or block of sound; null at the end.
  AvFrame next(MovieInput& input);

 private:
  using Clock = std::chrono::steady_clock;

  struct Vain {  // what has been tried for the first picture
    Clock::time_point until;
    int packets;
    int keys;
  };

  bool inVain() const;
  void feed(MovieInput& input);

  AvCodec codec_;
  AvPacket packet_;
  bool draining_ = false;
  std::int64_t wholeFrom_ = kNoTime;
  std::optional<Vain> vain_;
};

}  // namespace velra
