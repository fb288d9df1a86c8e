// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <memory>

struct AVFrame;

namespace velra {

/// A decoded picture of a movie and the span of time in which it is shown.
struct MoviePicture {
  double time = 0;  // seconds from the first picture of the movie
  double end = 0;   // start of the next picture; infinite for the last
  std::shared_ptr<const AVFrame> frame;
};

/// Decoded pictures by their times, the ones used longest ago given up first when the bytes exceed
/// the limit. Two groups of fifteen pictures at 1920 x 1080 fit into the usual limit.
class PictureCache {
 public:
  explicit PictureCache(std::size_t byteLimit = 96'000'000) : byteLimit_(byteLimit) {}

  void add(std::shared_ptr<const MoviePicture> picture);

  /// The picture whose span holds a time; null when it is not here.
  std::shared_ptr<const MoviePicture> find(double time);

  std::size_t bytes() const { return bytes_; }

  /// For how many pictures there is room, when all are like those here; 0 when there are none.
  double room() const;

 private:
  struct Entry {
    std::shared_ptr<const MoviePicture> picture;
    std::size_t bytes;
    std::list<double>::iterator age;
  };
  void remove(std::map<double, Entry>::iterator entry);

  std::size_t byteLimit_;
  std::size_t bytes_ = 0;
  std::map<double, Entry> entries_;
  std::list<double> ages_;  // keys, the one used longest ago first
};

}  // namespace velra
