// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "platform/movie/PixelSize.h"

namespace velra {

class MovieStills;

/// Writes pictures of one movie, which stays open for the next. One thread. All raise a run-time
/// error with a sentence that names the movie or the target that refuses.
class FrameGrabber {
 public:
  explicit FrameGrabber(const std::string& path);
  ~FrameGrabber();
  FrameGrabber(const FrameGrabber&) = delete;
  FrameGrabber& operator=(const FrameGrabber&) = delete;

  /// Writes the picture that is shown at a time (seconds) into a 24-bit bitmap of the given size in
  /// pixels, of the movie's own for 0.
  void grab(double seconds, PixelSize size, const std::string& targetBmp);

 private:
  std::string path_;
  std::unique_ptr<MovieStills> stills_;
};

/// The same for one picture alone.
void grabFrame(const std::string& path, double seconds, PixelSize size,
               const std::string& targetBmp);

}  // namespace velra
