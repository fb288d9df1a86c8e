// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/movie/MediaGraph.h"
#include "platform/movie/PixelSize.h"

namespace velra {

class FrameSource;
class MoviePlayer;

/// The movie over the machine's decoders and its sound card. A file with sound alone plays too; it
/// has no pictures and no length of a frame.
class MovieGraph final : public MediaGraph {
 public:
  MovieGraph();
  ~MovieGraph() override;
  MovieGraph(const MovieGraph&) = delete;
  MovieGraph& operator=(const MovieGraph&) = delete;

  std::string RenderFile(const std::string& path, const std::stop_token& stop) override;
  void Run() override;
  void Pause() override;
  void Stop() override;
  double Duration() const override { return duration_; }
  double CurrentPosition() const override;
  void setCurrentPosition(double seconds) override;
  double AvgTimePerFrame() const override { return frameTime_; }
  int videoWidth() const override { return width_; }
  int videoHeight() const override { return height_; }
  void setShownSize(int width, int height) override;
  std::shared_ptr<const PictureFrame> picture() const override;
  void setNotify(std::function<void(Notice)> notify) override;

 private:
  void renderPictures(const std::string& path, std::unique_ptr<FrameSource> source);
  bool renderSound(const std::string& path);
  void tell(Notice notice);

  double duration_ = 0;
  double frameTime_ = 0;
  int width_ = 0;
  int height_ = 0;
  PixelSize shownSize_;

  // Held during a call, so that none comes after the receiver was cleared, and while the player
  // changes, since a receiver asks for its picture.
  std::mutex notifyMutex_;
  std::function<void(Notice)> notify_;

  std::unique_ptr<MoviePlayer> player_;  // last: its threads call the receiver
};

}  // namespace velra
