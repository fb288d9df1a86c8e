// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundRing.h"

#include <algorithm>

namespace velra {

void SoundRing::clear() {
  first_ = 0;
  size_ = 0;
}

std::size_t SoundRing::put(const std::int16_t* samples, std::size_t count) {
  count = std::min(count, room());
  for (std::size_t i = 0; i < count; ++i) samples_[(first_ + size_ + i) % kCapacity] = samples[i];
  size_ += count;
  return count;
}

std::size_t SoundRing::take(std::int16_t* samples, std::size_t count) {
  count = std::min(count, size_);
  for (std::size_t i = 0; i < count; ++i) samples[i] = samples_[(first_ + i) % kCapacity];
  first_ = (first_ + count) % kCapacity;
  size_ -= count;
  return count;
}

}  // namespace velra
