// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PlayClock.h"

#include <algorithm>
#include <utility>

#include "movies/sound/SoundOut.h"

namespace velra {

PlayClock::PlayClock(std::unique_ptr<SoundOut> sound) : sound_(std::move(sound)) {}

PlayClock::PlayClock(PlayClock&& other) noexcept = default;

PlayClock::~PlayClock() = default;

void PlayClock::start(double seconds) {
  start_ = latest_ = seconds;
  started_ = Instant::clock::now();
  wallStart_.reset();
  if (sound_) sound_->start(seconds);
}

void PlayClock::stop() {
  if (sound_) sound_->stop();
}

double PlayClock::now() {
  double time = start_;
  if (soundRuns()) {
    time = sound_->now();
  } else if (wallStart_) {
    time += std::chrono::duration<double>(Instant::clock::now() - *wallStart_).count();
  }
  latest_ = std::max(latest_, time);
  return latest_;
}

bool PlayClock::soundRuns() {
  if (wallStart_) return false;
  const SoundOut::State state = sound_ ? sound_->state() : SoundOut::State::Silent;
  if (state == SoundOut::State::Running) return true;
  const bool late = Instant::clock::now() - started_ > kSoundLimit;
  if (state == SoundOut::State::Starting && !late) return false;
  wallStart_ = Instant::clock::now();
  if (late) stop();
  return false;
}

}  // namespace velra
