// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <stop_token>
#include <string>

#include "platform/movie/PixelBytes.h"

namespace velra {

/// Pixels of one picture: rows from the top, four bytes a pixel in the order blue, green, red, 255.
struct PictureFrame {
  int width = 0;
  int height = 0;
  PixelBytes pixels;
};

/// A movie that plays: the operations that the expression tool needs and no others. Called on the
/// window's thread, where no call waits but for `RenderFile`. Time 0 is the first picture of the
/// movie. After `setCurrentPosition(t)` the picture is the last one that starts at or before t, and
/// t is read back bit for bit.
class MediaGraph {
 public:
  virtual ~MediaGraph() = default;

  /// Opens the movie. "" on success, else one sentence that tells why not. May be called on another
  /// thread while no other call is made: it reads for up to a minute where a file must be read
  /// whole. `stop` lets it fail soon.
  virtual std::string RenderFile(const std::string& path, const std::stop_token& stop) = 0;

  virtual void Run() = 0;
  virtual void Pause() = 0;
  virtual void Stop() = 0;

  /// Seconds from the first picture to the end of the last; 0 when unknown.
  virtual double Duration() const = 0;
  virtual double CurrentPosition() const = 0;
  virtual void setCurrentPosition(double seconds) = 0;

  /// Seconds; 0 when unknown (a file without pictures).
  virtual double AvgTimePerFrame() const = 0;

  /// The size in square pixels, as which the pictures are meant to be seen; 0 without pictures.
  virtual int videoWidth() const = 0;
  virtual int videoHeight() const = 0;

  /// In how many pixels pictures are shown, so that those of play, which pass quickly, come in just
  /// this size. All others have the movie's own size, and in play those too after 0.
  virtual void setShownSize(int width, int height) = 0;

  /// The picture that is ready now, without waiting; null before the first.
  virtual std::shared_ptr<const PictureFrame> picture() const = 0;

  /// Called from any thread when the picture changed, the end was reached or playing failed. The
  /// receiver hands it over to the window's thread. Cleared before the graph goes.
  enum class Notice { PictureChanged, EndReached, Failed };
  virtual void setNotify(std::function<void(Notice)> notify) = 0;
};

/// Makes a graph over the machine's decoders and sound.
std::unique_ptr<MediaGraph> makeMediaGraph();

}  // namespace velra
