// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>
#include <optional>

namespace velra {

class SoundOut;

/// The time of the movie while it plays: what is heard, or the wall's time when there is no sound
/// or it does not come in time. Not locked: its owner does that.
class PlayClock {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  /// The sound is the master as long as there is one; it may be null.
  explicit PlayClock(std::unique_ptr<SoundOut> sound);
  PlayClock(PlayClock&& other) noexcept;
  PlayClock& operator=(PlayClock&&) = delete;
  ~PlayClock();
  PlayClock(const PlayClock&) = delete;
  PlayClock& operator=(const PlayClock&) = delete;

  void start(double seconds);
  void stop();

  /// Seconds; never less than before since the start. Stands at the start until sound or wall run.
  double now();

  /// How long the sound may take until it is heard; after that it stays silent until the next
  /// start.
  static constexpr std::chrono::milliseconds kSoundLimit{700};

 private:
  bool soundRuns();

  std::unique_ptr<SoundOut> sound_;
  double start_ = 0;
  double latest_ = 0;
  Instant started_;
  std::optional<Instant> wallStart_;
};

}  // namespace velra
