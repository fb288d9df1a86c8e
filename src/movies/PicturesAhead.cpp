// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PicturesAhead.h"

#include <cmath>
#include <utility>

#include "movies/PictureCache.h"
#include "platform/movie/MediaGraph.h"

namespace velra {

namespace {

// Large pictures wait in smaller numbers, but never less than two.
constexpr std::size_t kPicturesAhead = 6;
constexpr std::size_t kFewPicturesAhead = 2;
constexpr std::size_t kBytesAhead = 64'000'000;

}  // namespace

void PicturesAhead::restart(bool all) {
  waiting_.clear();
  last_.reset();
  all_ = all;
  failed_ = false;
}

bool PicturesAhead::wantsMore() const {
  if (all_) return false;
  if (waiting_.size() < kFewPicturesAhead) return true;
  return waiting_.size() < kPicturesAhead &&
         waiting_.size() * waiting_.front().pixels->pixels.size() < kBytesAhead;
}

void PicturesAhead::add(std::shared_ptr<const MoviePicture> picture,
                        std::shared_ptr<const PictureFrame> pixels) {
  if (pixels) waiting_.push_back({picture->time, std::move(pixels)});
  last_ = std::move(picture);
}

void PicturesAhead::end() {
  all_ = true;
  failed_ = !last_ || std::isfinite(last_->end);
}

PicturesAhead::Due PicturesAhead::take(double now, bool anyway) {
  Due due;
  while (!waiting_.empty() && (waiting_.front().time <= now || (anyway && !due.pixels))) {
    due = std::move(waiting_.front());
    waiting_.pop_front();
  }
  return due;
}

std::optional<double> PicturesAhead::nextTime() const {
  return waiting_.empty() ? std::nullopt : std::optional(waiting_.front().time);
}

}  // namespace velra
