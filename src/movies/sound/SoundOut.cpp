// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundOut.h"

#include <algorithm>
#include <utility>

#include "movies/sound/SoundDevice.h"

namespace velra {

namespace {

// So much is decoded before the card may fetch: 100 ms.
constexpr std::size_t kBeforeStart = SoundRing::kCapacity / 10;

}  // namespace

SoundOut::SoundOut(std::string path, std::optional<StampLine> line)
    : path_(std::move(path)), line_(std::move(line)), thread_([this] { work(); }) {}

SoundOut::~SoundOut() {
  {
    const std::lock_guard lock(mutex_);
    quit_ = true;
    ++generation_;
  }
  reader_.cancel();
  changed_.notify_all();
  thread_.join();
}

void SoundOut::start(double seconds) {
  {
    const std::lock_guard lock(mutex_);
    if (refused_) return;
    ++generation_;
    wanted_ = seconds;
    state_ = State::Starting;
    complete_ = false;
    ring_.clear();
    clock_.restart(seconds);
  }
  changed_.notify_all();
}

void SoundOut::stop() {
  {
    const std::lock_guard lock(mutex_);
    ++generation_;
    wanted_.reset();
    state_ = State::Silent;
    ring_.clear();
  }
  changed_.notify_all();
}

SoundOut::State SoundOut::state() const {
  const std::lock_guard lock(mutex_);
  return state_ == State::Starting && clock_.running() ? State::Running : state_;
}

double SoundOut::now() const {
  const std::lock_guard lock(mutex_);
  return clock_.at(SoundClock::Instant::clock::now());
}

void SoundOut::work() {
  const bool opened = reader_.open(path_, line_).empty();
  std::unique_lock lock(mutex_);
  refused_ = !opened;
  if (refused_) state_ = State::Silent;
  while (!quit_ && !refused_) {
    changed_.wait(lock, [&] { return quit_ || wanted_; });
    if (quit_) break;
    const double seconds = *std::exchange(wanted_, std::nullopt);
    const Generation generation = generation_;
    lock.unlock();
    play(seconds, generation);
    lock.lock();
  }
  lock.unlock();
  device_.reset();
}

void SoundOut::play(double seconds, Generation generation) {
  if (!openDevice()) {
    const std::lock_guard lock(mutex_);
    if (generation == generation_) state_ = State::Silent;
    return;
  }
  reader_.seek(seconds);
  std::vector<std::int16_t> samples;
  bool current = true;
  while (current && reader_.read(samples)) current = push(samples, generation);
  unpause(generation);
  std::unique_lock lock(mutex_);
  if (generation == generation_) complete_ = true;
  changed_.wait(lock, [&] { return generation != generation_; });
  lock.unlock();
  device_->pause(true);
}

// A card that is missing now may be there at the next start.
bool SoundOut::openDevice() {
  if (device_) return true;
  device_ = std::make_unique<SoundDevice>(
      [this](std::int16_t* samples, std::size_t count) { fill(samples, count); });
  if (!device_->open()) device_.reset();
  return device_ != nullptr;
}

// False when another start or stop has come.
bool SoundOut::push(const std::vector<std::int16_t>& samples, Generation generation) {
  std::size_t done = 0;
  while (done < samples.size()) {
    std::unique_lock lock(mutex_);
    if (generation != generation_) return false;
    done += ring_.put(samples.data() + done, samples.size() - done);
    if (ring_.size() < kBeforeStart) continue;
    lock.unlock();
    unpause(generation);
    lock.lock();
    changed_.wait(lock, [&] { return generation != generation_ || ring_.room() > kBeforeStart; });
  }
  return true;
}

void SoundOut::unpause(Generation generation) {
  {
    const std::lock_guard lock(mutex_);
    if (generation != generation_) return;
  }
  device_->pause(false);
}

// On the card's thread.
void SoundOut::fill(std::int16_t* samples, std::size_t count) {
  std::size_t got = 0;
  {
    const std::lock_guard lock(mutex_);
    got = ring_.take(samples, count);
    const bool last = complete_ && ring_.size() == 0;
    clock_.fetched(static_cast<std::int64_t>(count) / SoundReader::kChannels,
                   static_cast<std::int64_t>(got) / SoundReader::kChannels, last,
                   SoundClock::Instant::clock::now());
  }
  std::fill(samples + got, samples + count, std::int16_t{0});
  changed_.notify_all();
}

}  // namespace velra
