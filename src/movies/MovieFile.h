// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <string>

#include "movies/LibAv.h"

namespace velra {

/// A movie file as the library has opened it: a plain file in a known format alone, so that a
/// playlist or a picture that calls itself a movie makes nothing else be read. Every call into the
/// library ends at a deadline. One thread, but for `cancel`.
class MovieFile {
 public:
  /// Pictures with more pixels than this are refused: the largest that are in use.
  static constexpr int kMostPixels = 8192 * 4320;

  MovieFile();
  ~MovieFile() = default;
  MovieFile(const MovieFile&) = delete;
  MovieFile& operator=(const MovieFile&) = delete;

  /// "" on success, else one sentence that tells why not. `limit` is for all of it.
  std::string open(const std::string& path, std::chrono::seconds limit);

  /// The same for the same path once more, from its start. What was open stays so on a failure.
  std::string reopen(std::chrono::seconds limit);

  /// Null before the first opening that succeeds.
  AVFormatContext* format() const { return format_.get(); }

  /// True when the container says that the pictures have more than `kMostPixels`; it may lie.
  bool statesTooLarge() const { return statesTooLarge_; }

  /// The calls from now on have so long, together.
  void allow(std::chrono::seconds limit);

  /// True when calls fail: the deadline has passed, or it was cancelled.
  bool isInterrupted() const;

  void cancel() { cancelled_ = true; }
  bool cancelled() const { return cancelled_; }

 private:
  AvFormat format_;
  std::string path_;
  bool statesTooLarge_ = false;
  std::chrono::steady_clock::time_point deadline_;
  std::atomic<bool> cancelled_{false};
};

}  // namespace velra
