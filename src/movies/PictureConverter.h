// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "platform/movie/MediaGraph.h"

struct AVFrame;

namespace velra {

/// Decoded pictures as pixels, in the colours that the stream asks for: the one way for screen and
/// still. One thread; keeps its tables for the next picture of the same kind.
class PictureConverter {
 public:
  PictureConverter();
  ~PictureConverter();
  PictureConverter(const PictureConverter&) = delete;
  PictureConverter& operator=(const PictureConverter&) = delete;

  /// The picture in the given size, in its own for 0. Null when it cannot be converted.
  std::shared_ptr<const PictureFrame> convert(const AVFrame& frame, int width = 0, int height = 0);

 private:
  struct Tables;

  bool prepare(const AVFrame& frame, int width, int height);

  std::unique_ptr<Tables> tables_;
};

}  // namespace velra
