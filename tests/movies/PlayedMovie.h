// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/movie/MediaGraph.h"

namespace velra::test {

/// A movie graph with a spectator, who notes the number of each picture that is shown.
class PlayedMovie {
 public:
  PlayedMovie();
  ~PlayedMovie();

  MediaGraph& graph() { return *graph_; }

  /// Opens the movie and waits for its first picture. The reason of a failure.
  std::string open(const std::string& path);

  /// Waits until a condition holds, which is asked after each notice and now and then; false when
  /// it does not within twenty seconds.
  bool waitUntil(const std::function<bool()>& condition);

  bool waitForNumber(int number);
  bool waitForEnd();
  bool waitForShown(std::size_t count);

  /// The number in the picture that is ready now; -1 for none.
  int number() const;

  std::vector<int> shown() const;
  void forgetShown();

 private:
  void note(MediaGraph::Notice notice);

  std::unique_ptr<MediaGraph> graph_;
  mutable std::mutex mutex_;
  std::condition_variable noted_;
  std::vector<int> shown_;
  bool ended_ = false;
};

/// Sets the sound library's driver for a while: "dummy" is a card without a sound.
class SoundDriver {
 public:
  explicit SoundDriver(const char* name);
  ~SoundDriver();
  SoundDriver(const SoundDriver&) = delete;
  SoundDriver& operator=(const SoundDriver&) = delete;
};

}  // namespace velra::test
