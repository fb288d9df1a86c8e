// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

namespace velra {

/// Tells which time of the movie is heard, from what the card has fetched. A block that is fetched
/// is heard only after the one before it. Silence of an underrun is no time of the movie. Not
/// locked: its owner does that.
class SoundClock {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  /// The samples fetched next begin at a time in seconds.
  void restart(double seconds);

  /// The card has fetched a block: how many samples a channel it asked for and how many it got.
  /// `last` when no more will come.
  void fetched(std::int64_t asked, std::int64_t got, bool last, Instant when);

  bool running() const { return running_; }

  /// Seconds; never beyond what was fetched, unless the sound has ended or the card is silent for
  /// longer than `kPatience`: then time goes on without it.
  double at(Instant when) const;

  static constexpr double kPatience = 1;

 private:
  double start_ = 0;
  double heard_ = 0;  // at the last fetch
  double fetchedUpTo_ = 0;
  Instant lastFetch_;
  bool running_ = false;
  bool ended_ = false;
};

}  // namespace velra
