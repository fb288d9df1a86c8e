// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "movies/StampLine.h"

namespace velra {

class MovieInput;

/// A picture at which decoding can begin, and when it is shown.
struct KeyPlace {
  std::int64_t position = 0;  // in bytes: of the stretch of bytes in which it begins
  int behind = 0;             // how many pictures begin in that stretch before it
  int size = 0;               // of its packet in bytes, by which it is known
  double time = 0;            // seconds from the first picture of the file
};

/// What the packets of a picture track tell without being decoded.
struct PictureIndex {
  bool complete = false;       // all packets of the file were read
  bool stampedKeys = false;    // half of the keys or more carry a time of their own
  bool sure = true;            // packets could be given their places in time
  bool lost = false;           // though not all of them
  std::vector<KeyPlace> keys;  // in time, `kKeyDistance` apart at least
  StampLine line;              // what stamps exceed times by, as far as pictures have some
  double last = 0;             // the last picture, in seconds from the first one
  int lastFields = 0;          // for which that is shown
  std::int64_t pictures = 0;
  std::int64_t bytes = 0;                 // how far the file was read
  std::map<std::int64_t, int> distances;  // from picture to picture in ticks, and how often

  static constexpr double kKeyDistance = 0.4;

  /// The last key that is shown at a time or before it; null when there is none.
  const KeyPlace* keyBefore(double time) const;

  /// The greatest distance from key to key in seconds, as far as the file was read; 0 when fewer
  /// than two are known.
  double longestGroup() const;

  /// The distance in ticks that most pictures have: the mean of those that differ from the median
  /// by no more than the rounding to ticks. 0 when these are not most.
  double usualDistance() const;
};

/// Reads packets from where the input stands and enters their pictures in an index.
class PictureIndexer {
 public:
  /// `frameTime` in seconds; a difference of more than `leap` seconds between stamps is a leap.
  /// Input and index outlive it; the index is right after each `read`.
  PictureIndexer(MovieInput& input, double frameTime, double leap, PictureIndex& index);
  ~PictureIndexer();
  PictureIndexer(const PictureIndexer&) = delete;
  PictureIndexer& operator=(const PictureIndexer&) = delete;

  /// Reads on to the end of the file, or until so much time has passed and some packets have come.
  void read(std::chrono::milliseconds limit);

 private:
  struct State;

  MovieInput& input_;
  PictureIndex& index_;
  std::unique_ptr<State> state_;
};

}  // namespace velra
