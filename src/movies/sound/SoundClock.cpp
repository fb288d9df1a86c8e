// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundClock.h"

#include <algorithm>

#include "movies/sound/SoundReader.h"

namespace velra {

void SoundClock::restart(double seconds) {
  start_ = heard_ = fetchedUpTo_ = seconds;
  running_ = false;
  ended_ = false;
}

void SoundClock::fetched(std::int64_t asked, std::int64_t got, bool last, Instant when) {
  if (ended_) return;
  const double block = static_cast<double>(asked) / SoundReader::kRate;
  heard_ = std::max(start_, fetchedUpTo_ - block);
  fetchedUpTo_ += static_cast<double>(got) / SoundReader::kRate;
  lastFetch_ = when;
  running_ = running_ || got > 0 || last;
  ended_ = last;
}

double SoundClock::at(Instant when) const {
  if (!running_) return start_;
  const double age = std::chrono::duration<double>(when - lastFetch_).count();
  const double time = heard_ + age;
  return ended_ ? time : std::min(time, fetchedUpTo_ + std::max(0.0, age - kPatience));
}

}  // namespace velra
