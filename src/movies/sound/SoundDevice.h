// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace velra {

/// The sound card, through the platform's sound library: fetches samples of the kind that
/// `SoundReader` gives. Closed, and the library left, at its end, which must come on the thread
/// that opened it.
class SoundDevice {
 public:
  /// Called on the library's thread; fills `count` samples, both channels in turn.
  using Fill = std::function<void(std::int16_t* samples, std::size_t count)>;

  explicit SoundDevice(Fill fill);
  ~SoundDevice();
  SoundDevice(const SoundDevice&) = delete;
  SoundDevice& operator=(const SoundDevice&) = delete;

  /// False when there is no card. It fetches nothing until it is unpaused.
  bool open();

  void pause(bool paused);

 private:
  static void fetch(void* self, std::uint8_t* bytes, int length);

  Fill fill_;
  bool inited_ = false;
  std::uint32_t device_ = 0;
};

}  // namespace velra
