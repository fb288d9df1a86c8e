// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velra {

/// Samples on their way to the card: a queue of half a second. Not locked: its owner does that.
class SoundRing {
 public:
  static constexpr std::size_t kCapacity = 48000;  // samples of both channels

  void clear();
  std::size_t size() const { return size_; }
  std::size_t room() const { return kCapacity - size_; }

  /// Puts as many samples in as there is room for; how many.
  std::size_t put(const std::int16_t* samples, std::size_t count);

  /// Takes out as many samples as there are; how many.
  std::size_t take(std::int16_t* samples, std::size_t count);

 private:
  std::vector<std::int16_t> samples_ = std::vector<std::int16_t>(kCapacity);
  std::size_t first_ = 0;
  std::size_t size_ = 0;
};

}  // namespace velra
