// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PictureCache.h"

#include <iterator>
#include <utility>

#include "movies/LibAv.h"

namespace velra {

namespace {

std::size_t sizeOf(const AVFrame& frame) {
  std::size_t bytes = 0;
  for (const AVBufferRef* buffer : frame.buf) {
    if (buffer != nullptr) bytes += buffer->size;
  }
  return bytes;
}

}  // namespace

void PictureCache::add(std::shared_ptr<const MoviePicture> picture) {
  const double key = picture->time;
  if (const auto old = entries_.find(key); old != entries_.end()) remove(old);
  const std::size_t size = sizeOf(*picture->frame);
  const auto age = ages_.insert(ages_.end(), key);
  entries_.emplace(key, Entry{std::move(picture), size, age});
  bytes_ += size;
  while (bytes_ > byteLimit_ && entries_.size() > 1) remove(entries_.find(ages_.front()));
}

std::shared_ptr<const MoviePicture> PictureCache::find(double time) {
  auto entry = entries_.upper_bound(time);
  if (entry == entries_.begin()) return nullptr;
  --entry;
  if (time >= entry->second.picture->end) return nullptr;
  ages_.splice(ages_.end(), ages_, entry->second.age);
  return entry->second.picture;
}

void PictureCache::remove(std::map<double, Entry>::iterator entry) {
  bytes_ -= entry->second.bytes;
  ages_.erase(entry->second.age);
  entries_.erase(entry);
}

double PictureCache::room() const {
  if (bytes_ == 0) return 0;
  return static_cast<double>(byteLimit_) * static_cast<double>(entries_.size()) /
         static_cast<double>(bytes_);
}

}  // namespace velra
