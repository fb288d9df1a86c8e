// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <deque>
#include <future>
#include <string>
#include <vector>

namespace velra {

/// The pictures of many segments of one movie that will be made one behind the other, taken some
/// steps ahead by threads that keep the movie open. One thread uses it.
class KeyFramesAhead {
 public:
  /// `times` are seconds of the movie, in the order in which they will be asked for.
  KeyFramesAhead(std::string movie, std::vector<double> times);
  /// Waits for what is being taken, and deletes what nobody asked for.
  ~KeyFramesAhead();
  KeyFramesAhead(const KeyFramesAhead&) = delete;
  KeyFramesAhead& operator=(const KeyFramesAhead&) = delete;

  /// A temporary bitmap of the picture at a time, which is the caller's from now on; "" for one
  /// that was not announced, or before another that has been asked for. Raises the run-time error
  /// of what refuses.
  std::string take(const std::string& movie, double seconds);

 private:
  struct Still {
    std::string file;    // "": there is none
    std::string reason;  // why
  };
  using Stills = std::vector<Still>;

  void begin();
  Still next();
  static Stills take(const std::string& movie, const std::vector<double>& times);

  const std::string movie_;
  const std::vector<double> times_;
  std::size_t begun_ = 0;  // how many times were given to a thread
  std::size_t taken_ = 0;
  std::deque<std::future<Stills>> coming_;
  std::deque<Still> ready_;
};

}  // namespace velra
