// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

namespace velra::bench {

/// mpv with a movie, paused, which takes one act at a time, so that both players can go in turns.
/// It decodes in software and paints nothing.
class OtherPlayer {
 public:
  /// `earlier`: seconds before each time that is sought at which it begins to decode, its own cure
  /// for files in which it begins too late. Nothing when it is not installed or plays no movie.
  static std::unique_ptr<OtherPlayer> start(const std::string& movie, const std::string& folder,
                                            double earlier);
  ~OtherPlayer();
  OtherPlayer(const OtherPlayer&) = delete;
  OtherPlayer& operator=(const OtherPlayer&) = delete;

  /// Milliseconds until the picture is there. Nothing when it shows another one.
  std::optional<double> seek(double time);
  /// The same for one picture back.
  std::optional<double> stepBack();

 private:
  struct Answer {
    double spent = 0;     // milliseconds
    double position = 0;  // seconds
  };

  OtherPlayer(const std::string& command, const std::string& requests);
  std::optional<Answer> answer();
  std::optional<Answer> act(const std::string& request);

  std::fstream requests_;
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> program_;
};

/// Seconds of play after which it is measured: the seek before it and the first pictures are over.
inline constexpr double kPlayStart = 0.5;

/// The share of one core that mpv takes to play so many seconds of a movie, `kPlayStart` behind a
/// time, without its start; it decodes in software, and makes the pictures as a screen takes them.
/// Nothing when it is not installed.
std::optional<double> mpvPlayWork(const std::string& movie, double from, double seconds);

}  // namespace velra::bench
