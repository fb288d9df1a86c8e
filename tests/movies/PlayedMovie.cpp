// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PlayedMovie.h"

#include <chrono>
#include <cstdlib>

#include "movies/MovieGraph.h"
#include "support/NumberedMovie.h"

namespace velra::test {

PlayedMovie::PlayedMovie() : graph_(std::make_unique<MovieGraph>()) {
  graph_->setNotify([this](MediaGraph::Notice notice) { note(notice); });
}

PlayedMovie::~PlayedMovie() {
  graph_->setNotify({});
}

void PlayedMovie::note(MediaGraph::Notice notice) {
  const int seen = notice == MediaGraph::Notice::PictureChanged ? number() : -1;
  const std::lock_guard lock(mutex_);
  if (notice == MediaGraph::Notice::PictureChanged) shown_.push_back(seen);
  ended_ = ended_ || notice == MediaGraph::Notice::EndReached;
  noted_.notify_all();
}

std::string PlayedMovie::open(const std::string& path) {
  const std::string reason = graph_->RenderFile(path, {});
  if (!reason.empty() || graph_->videoWidth() == 0) return reason;
  return waitUntil([this] { return graph_->picture() != nullptr; }) ? "" : "No picture comes.";
}

bool PlayedMovie::waitUntil(const std::function<bool()>& condition) {
  const auto stop = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > stop) return false;
    std::unique_lock lock(mutex_);
    noted_.wait_for(lock, std::chrono::milliseconds(5));
  }
  return true;
}

bool PlayedMovie::waitForNumber(int number) {
  return waitUntil([&] { return this->number() == number; });
}

bool PlayedMovie::waitForEnd() {
  return waitUntil([this] {
    const std::lock_guard lock(mutex_);
    return ended_;
  });
}

bool PlayedMovie::waitForShown(std::size_t count) {
  return waitUntil([&] { return shown().size() >= count; });
}

int PlayedMovie::number() const {
  const auto picture = graph_->picture();
  return picture ? numberIn(*picture) : -1;
}

std::vector<int> PlayedMovie::shown() const {
  const std::lock_guard lock(mutex_);
  return shown_;
}

void PlayedMovie::forgetShown() {
  const std::lock_guard lock(mutex_);
  shown_.clear();
}

SoundDriver::SoundDriver(const char* name) {
  ::setenv("SDL_AUDIODRIVER", name, 1);
}

SoundDriver::~SoundDriver() {
  ::unsetenv("SDL_AUDIODRIVER");
}

}  // namespace velra::test
