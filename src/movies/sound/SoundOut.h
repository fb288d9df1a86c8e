// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "movies/sound/SoundClock.h"
#include "movies/sound/SoundReader.h"
#include "movies/sound/SoundRing.h"

namespace velra {

class SoundDevice;

/// Plays the sound of a movie and tells what is heard now. Opens, seeks and decodes on a thread of
/// its own, so that no call here waits. Without sound in the movie or without a card it is silent.
class SoundOut {
 public:
  enum class State {
    Starting,  // not heard yet
    Running,   // `now` tells the time
    Silent,    // nothing will be heard
  };

  /// `line` as for `SoundReader::open`. Opening begins at once.
  SoundOut(std::string path, std::optional<StampLine> line);
  ~SoundOut();
  SoundOut(const SoundOut&) = delete;
  SoundOut& operator=(const SoundOut&) = delete;

  void start(double seconds);
  void stop();

  State state() const;

  /// The time of the movie in seconds that is heard now. After the end of the sound it goes on.
  double now() const;

 private:
  using Generation = std::uint64_t;

  void work();
  void play(double seconds, Generation generation);
  bool openDevice();
  bool push(const std::vector<std::int16_t>& samples, Generation generation);
  void unpause(Generation generation);
  void fill(std::int16_t* samples, std::size_t count);

  const std::string path_;
  const std::optional<StampLine> line_;
  SoundReader reader_;
  std::unique_ptr<SoundDevice> device_;

  mutable std::mutex mutex_;  // guards all that follows
  std::condition_variable changed_;
  bool refused_ = false;          // the movie has no sound that can be decoded
  std::optional<double> wanted_;  // a start that was asked for
  Generation generation_ = 0;     // of the last start or stop
  State state_ = State::Silent;
  bool quit_ = false;
  bool complete_ = false;  // all samples up to the end are in the ring
  SoundRing ring_;
  SoundClock clock_;

  std::thread thread_;  // last, so that it sees everything made
};

}  // namespace velra
