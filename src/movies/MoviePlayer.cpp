// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MoviePlayer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "movies/FrameSource.h"

namespace velra {

namespace {

// The clock of the sound may jump, so that a picture's time is looked at this often at least.
constexpr double kLongestNap = 0.02;
constexpr double kShortestNap = 0.001;

}  // namespace

MoviePlayer::MoviePlayer(std::unique_ptr<FrameSource> source, PlayClock clock, double duration,
                         Notify notify)
    : source_(std::move(source)),
      duration_(duration),
      notify_(std::move(notify)),
      clock_(std::move(clock)),
      decoding_([this] { decode(); }),
      showing_([this] { show(); }) {}

MoviePlayer::~MoviePlayer() {
  {
    const std::lock_guard lock(mutex_);
    quit_ = true;
    clock_.stop();
  }
  if (source_) source_->cancel();
  toDecode_.notify_all();
  toShow_.notify_all();
  decoding_.join();
  showing_.join();
}

void MoviePlayer::run() {
  const std::lock_guard lock(mutex_);
  if (!playing_) beginPlay();
}

void MoviePlayer::beginPlay() {
  ++generation_;
  playing_ = true;
  shownSinceRun_ = false;
  sought_.reset();  // else its picture would come after the next halt, over the one shown then
  ahead_.restart(source_ == nullptr);
  clock_.start(std::isfinite(position_) ? position_ : 0);
  toDecode_.notify_all();
  toShow_.notify_all();
}

void MoviePlayer::halt() {
  const std::lock_guard lock(mutex_);
  if (!playing_) return;
  ++generation_;
  playing_ = false;
  ahead_.restart(false);
  clock_.stop();
  seekStill();
}

// The picture for the position where play has ended, in the movie's size.
void MoviePlayer::seekStill() {
  const bool sized = shownSize_.width > 0 && shownSize_.height > 0;
  if (!shownSinceRun_ || sized) sought_ = position_;
  toDecode_.notify_all();
}

void MoviePlayer::setShownSize(PixelSize size) {
  const std::lock_guard lock(mutex_);
  shownSize_ = size;
}

double MoviePlayer::position() const {
  const std::lock_guard lock(mutex_);
  return position_;
}

void MoviePlayer::setPosition(double seconds) {
  const std::lock_guard lock(mutex_);
  position_ = seconds;
  if (playing_) {
    beginPlay();
  } else {
    ++generation_;
    sought_ = seconds;
    toDecode_.notify_all();
  }
}

std::shared_ptr<const PictureFrame> MoviePlayer::picture() const {
  const std::lock_guard lock(mutex_);
  return shown_;
}

void MoviePlayer::decode() {
  Lock lock(mutex_);
  while (source_ && !quit_) {
    if (playing_ && ahead_.wantsMore()) {
      decodeAhead(lock);
    } else if (sought_ && !playing_) {
      decodeSought(lock);
    } else {
      toDecode_.wait(lock);
    }
  }
}

void MoviePlayer::decodeSought(Lock& lock) {
  const double seconds = *std::exchange(sought_, std::nullopt);
  lock.unlock();
  const auto picture = source_->at(seconds);
  auto pixels = picture ? converter_.convert(*picture->frame) : nullptr;
  lock.lock();
  // A picture that is late because a newer one is asked for is shown none the less: someone drags,
  // and wants to see where. Only play may not be disturbed.
  if (playing_ || quit_) return;
  if (pixels) shown_ = std::move(pixels);
  tell(lock, picture ? MediaGraph::Notice::PictureChanged : MediaGraph::Notice::Failed);
}

void MoviePlayer::decodeAhead(Lock& lock) {
  const std::uint64_t generation = generation_;
  const auto before = ahead_.last();
  const double start = position_;
  const PixelSize size = shownSize_;
  lock.unlock();
  auto picture = before ? source_->after(*before) : source_->at(start);
  auto pixels = picture ? converter_.convert(*picture->frame, size.width, size.height) : nullptr;
  lock.lock();
  if (generation != generation_ || quit_) return;
  if (picture) {
    ahead_.add(std::move(picture), std::move(pixels));
  } else {
    ahead_.end();
  }
  toShow_.notify_all();
}

void MoviePlayer::show() {
  Lock lock(mutex_);
  while (!quit_) {
    if (!playing_) {
      toShow_.wait(lock);
      continue;
    }
    showDue(lock);
    if (!quit_ && playing_) toShow_.wait_for(lock, untilNext(clock_.now()));
  }
}

void MoviePlayer::showDue(Lock& lock) {
  const double now = clock_.now();
  PicturesAhead::Due due = ahead_.take(now, !shownSinceRun_);
  if (due.pixels) {
    shown_ = std::move(due.pixels);
    if (shownSinceRun_) position_ = due.time;
    shownSinceRun_ = true;
    toDecode_.notify_all();
    tell(lock, MediaGraph::Notice::PictureChanged);
  } else if (!source_) {
    shownSinceRun_ = true;
    position_ = std::clamp(now, position_, std::max(position_, duration_));
    if (now >= duration_) endPlay(lock, MediaGraph::Notice::EndReached);
  } else if (ahead_.spent() && ahead_.failed()) {
    endPlay(lock, MediaGraph::Notice::Failed);
  } else if (ahead_.spent() && now >= duration_) {
    position_ = std::max(position_, duration_);
    endPlay(lock, MediaGraph::Notice::EndReached);
  }
}

void MoviePlayer::endPlay(Lock& lock, MediaGraph::Notice notice) {
  ++generation_;
  playing_ = false;
  clock_.stop();
  if (notice == MediaGraph::Notice::EndReached && source_) seekStill();
  tell(lock, notice);
}

std::chrono::duration<double> MoviePlayer::untilNext(double now) const {
  const double wait = ahead_.nextTime().value_or(now + kLongestNap) - now;
  return std::chrono::duration<double>(std::clamp(wait, kShortestNap, kLongestNap));
}

// Nothing that is guarded is held while the receiver is called.
void MoviePlayer::tell(Lock& lock, MediaGraph::Notice notice) {
  lock.unlock();
  notify_(notice);
  lock.lock();
}

}  // namespace velra
