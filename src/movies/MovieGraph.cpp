// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieGraph.h"

#include <utility>

#include "movies/FrameSource.h"
#include "movies/MoviePlayer.h"
#include "movies/sound/SoundLength.h"
#include "movies/sound/SoundOut.h"

namespace velra {

MovieGraph::MovieGraph() = default;

MovieGraph::~MovieGraph() = default;

std::string MovieGraph::RenderFile(const std::string& path, const std::stop_token& stop) {
  std::unique_ptr<MoviePlayer> old;
  {
    const std::lock_guard lock(notifyMutex_);
    old.swap(player_);
  }
  old.reset();
  duration_ = frameTime_ = 0;
  width_ = height_ = 0;
  auto source = std::make_unique<FrameSource>();
  std::string reason = source->open(path, stop);
  if (reason.empty()) {
    renderPictures(path, std::move(source));
  } else if (!stop.stop_requested() && !source->hasPictures() && renderSound(path)) {
    reason.clear();
  }
  return reason;
}

void MovieGraph::renderPictures(const std::string& path, std::unique_ptr<FrameSource> source) {
  frameTime_ = source->frameTime();
  width_ = source->shownSize().width;
  height_ = source->shownSize().height;
  PlayClock clock(std::make_unique<SoundOut>(path, source->stampLine()));
  duration_ = source->duration();
  const std::lock_guard lock(notifyMutex_);
  player_ = std::make_unique<MoviePlayer>(std::move(source), std::move(clock), duration_,
                                          [this](Notice notice) { tell(notice); });
  player_->setShownSize(shownSize_);
}

bool MovieGraph::renderSound(const std::string& path) {
  duration_ = soundLength(path);
  if (duration_ <= 0) return false;
  PlayClock clock(std::make_unique<SoundOut>(path, std::nullopt));
  const std::lock_guard lock(notifyMutex_);
  player_ = std::make_unique<MoviePlayer>(nullptr, std::move(clock), duration_,
                                          [this](Notice notice) { tell(notice); });
  return true;
}

void MovieGraph::Run() {
  if (player_) player_->run();
}

void MovieGraph::Pause() {
  if (player_) player_->halt();
}

void MovieGraph::Stop() {
  if (player_) player_->halt();
}

double MovieGraph::CurrentPosition() const {
  return player_ ? player_->position() : 0;
}

void MovieGraph::setCurrentPosition(double seconds) {
  if (player_) player_->setPosition(seconds);
}

void MovieGraph::setShownSize(int width, int height) {
  shownSize_ = {width, height};
  if (player_) player_->setShownSize(shownSize_);
}

std::shared_ptr<const PictureFrame> MovieGraph::picture() const {
  return player_ ? player_->picture() : nullptr;
}

void MovieGraph::setNotify(std::function<void(Notice)> notify) {
  const std::lock_guard lock(notifyMutex_);
  notify_ = std::move(notify);
}

void MovieGraph::tell(Notice notice) {
  const std::lock_guard lock(notifyMutex_);
  if (notify_) notify_(notice);
}

}  // namespace velra
