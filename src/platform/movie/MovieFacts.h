// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace velra {

/// What a movie file says of its own technique. Numbers are 0 and texts "" where it says nothing.
struct MovieFacts {
  std::string reason;  // why nothing could be read; then all else is empty

  std::string container;     // the library's short name
  std::string mimeType;      // "video/mpeg"; "application/octet-stream" where none is known
  std::uint64_t bytes = 0;   // of the file
  std::int64_t bitRate = 0;  // of all tracks, bits per second

  std::string pictureCoding;  // the library's short name, as "mpeg2video"
  int width = 0;
  int height = 0;
  double rate = 0;  // pictures per second
  std::int64_t pictureBitRate = 0;

  std::string soundCoding;
  int sampleRate = 0;
  int channels = 0;
  std::int64_t soundBitRate = 0;
};

/// Reads the head of a movie, which takes five seconds at most.
MovieFacts movieFacts(const std::string& path);

}  // namespace velra
