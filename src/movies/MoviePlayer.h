// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "movies/PictureConverter.h"
#include "movies/PicturesAhead.h"
#include "movies/PlayClock.h"
#include "platform/movie/MediaGraph.h"
#include "platform/movie/PixelSize.h"

namespace velra {

class FrameSource;

/// Shows the pictures of an open movie: the one for the position, or in play each at its time. One
/// thread decodes ahead, another shows; no call here waits for them. Of many positions that are
/// written in a row the last wins. Without pictures only the position moves.
class MoviePlayer {
 public:
  using Notify = std::function<void(MediaGraph::Notice)>;

  /// `source` may be null: sound alone. `duration` in seconds. `notify` is called on the threads.
  MoviePlayer(std::unique_ptr<FrameSource> source, PlayClock clock, double duration, Notify notify);
  ~MoviePlayer();
  MoviePlayer(const MoviePlayer&) = delete;
  MoviePlayer& operator=(const MoviePlayer&) = delete;

  void run();

  /// Ends play; the position is then the picture shown, which comes once more in the movie's size,
  /// and the picture for it comes if none was.
  void halt();

  /// See `MediaGraph::setShownSize`.
  void setShownSize(PixelSize size);

  double position() const;
  void setPosition(double seconds);
  std::shared_ptr<const PictureFrame> picture() const;

 private:
  using Lock = std::unique_lock<std::mutex>;

  void beginPlay();
  void decode();
  void decodeSought(Lock& lock);
  void decodeAhead(Lock& lock);
  void seekStill();
  void show();
  void showDue(Lock& lock);
  void endPlay(Lock& lock, MediaGraph::Notice notice);
  std::chrono::duration<double> untilNext(double now) const;
  void tell(Lock& lock, MediaGraph::Notice notice);

  // Of the decoding thread alone.
  const std::unique_ptr<FrameSource> source_;
  PictureConverter converter_;

  const double duration_;
  const Notify notify_;

  mutable std::mutex mutex_;  // guards all that follows
  std::condition_variable toDecode_;
  std::condition_variable toShow_;
  PlayClock clock_;
  bool quit_ = false;
  bool playing_ = false;
  bool shownSinceRun_ = false;
  PixelSize shownSize_;  // of pictures in play
  double position_ = 0;
  std::optional<double> sought_ = 0;  // a picture to be shown out of play; first of all the first
  std::shared_ptr<const PictureFrame> shown_;
  std::uint64_t generation_ = 0;  // changes with every command, so that late pictures are known
  PicturesAhead ahead_;

  std::thread decoding_;  // last, so that they see everything made
  std::thread showing_;
};

}  // namespace velra
