// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

struct AVFrame;

namespace velra {

/// How much each picture of a movie differs from the one before it, by the scene detection of
/// libavfilter. Pictures are made small first, which also takes the grain out of them.
class SceneFilter {
 public:
  static constexpr int kWidth = 128;  // of the small pictures, in pixels

  struct Scored {
    double score = 0;  // 0 to 100; 0 for the first one, and for the first one of another size
    std::shared_ptr<const AVFrame> small;  // three bytes a pixel; null when it could not be made
  };

  SceneFilter();
  ~SceneFilter();
  SceneFilter(const SceneFilter&) = delete;
  SceneFilter& operator=(const SceneFilter&) = delete;

  /// Scores the next picture.
  Scored score(const AVFrame& frame);

 private:
  struct Graph;

  std::unique_ptr<Graph> graph_;
};

/// How much two small pictures differ, from 0 to 100; 100 for those of different sizes.
double differenceOf(const AVFrame& one, const AVFrame& other);

}  // namespace velra
