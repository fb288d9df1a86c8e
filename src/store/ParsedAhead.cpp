// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ParsedAhead.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace velra {

namespace {

// Fewer are read by the one that takes them before a thread would have begun.
constexpr std::size_t kFewFiles = 8;

// How far readers go ahead: an object's file has some kilobytes, and its tree ten times as much.
constexpr std::size_t kMostAhead = 64;
constexpr std::uint64_t kMostBytesAhead = 8'000'000;

// A file takes a few dozen microseconds where nothing is waited for.
constexpr std::chrono::microseconds kWaitsForShelf{400};
constexpr std::size_t kMostReaders = 16;

std::size_t readersFor(std::size_t files) {
  if (files < kFewFiles) return 0;
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, 4);
}

void readFile(const ParsedAhead::Wanted& wanted, ParsedAhead::File& file) {
  file.known = wanted.known.exists && file.stamp == wanted.known;
  try {
    if (!file.known) file.parsed = file.document.load(wanted.path);
  } catch (...) {
    // No error may end on a reader's thread: whoever takes the file gets it.
    file.raised = std::current_exception();
  }
}

}  // namespace

ParsedAhead::ParsedAhead(std::vector<Wanted> files)
    : wanted_(std::move(files)), slots_(std::min(kMostAhead, wanted_.size())) {
  for (std::size_t i = readersFor(wanted_.size()); i > 0; --i) addReader();
}

ParsedAhead::~ParsedAhead() {
  {
    const Lock lock(mutex_);
    ended_ = true;
  }
  room_.notify_all();
  for (Reader& reader : readers_) reader.thread.join();
}

// Where the system refuses one more, those that there are do the work.
void ParsedAhead::addReader() {
  Reader& reader = readers_.emplace_back();
  try {
    reader.thread = std::thread([this, &reader] { work(reader); });
  } catch (const std::system_error&) {
    readers_.pop_back();
  }
}

const ParsedAhead::File& ParsedAhead::current() const {
  if (current_.raised) std::rethrow_exception(current_.raised);
  return current_;
}

const ParsedAhead::File& ParsedAhead::take() {
  if (readers_.empty()) {
    const Wanted& wanted = wanted_[taken_++];
    current_ = {fileStamp(wanted.path), false, false, {}, {}};
    readFile(wanted, current_);
    return current();
  }
  Lock lock(mutex_);
  Slot& slot = slots_[taken_ % slots_.size()];
  ready_.wait(lock, [&slot] { return slot.ready; });
  if (currentReader_) currentReader_->gone.push_back(std::move(current_.document));
  current_ = std::move(slot.file);
  currentReader_ = slot.reader;
  slot.ready = false;
  ahead_ -= current_.known ? 0 : current_.stamp.size;
  ++taken_;
  const bool slow = taken_ > kFewFiles && spent_ > kWaitsForShelf * taken_;
  if (slow && readers_.size() < kMostReaders) addReader();
  // To be woken for each single file would cost a reader more than the file.
  const bool room = full_ > 0 || begun_ - taken_ <= slots_.size() / 2;
  lock.unlock();
  if (room) room_.notify_all();
  return current();
}

bool ParsedAhead::mayBegin() const {
  return begun_ < wanted_.size() && begun_ - taken_ < slots_.size();
}

void ParsedAhead::work(Reader& reader) {
  Lock lock(mutex_);
  while (true) {
    room_.wait(lock, [this] { return ended_ || mayBegin(); });
    if (ended_) return;
    std::vector<XmlDocument> gone = std::exchange(reader.gone, {});
    const std::size_t place = begun_++;
    lock.unlock();
    gone.clear();
    read(place, reader);
    lock.lock();
  }
}

void ParsedAhead::read(std::size_t place, Reader& reader) {
  const Wanted& wanted = wanted_[place];
  File file{fileStamp(wanted.path), false, false, {}, {}};
  const std::uint64_t size = file.stamp == wanted.known ? 0 : file.stamp.size;
  Lock lock(mutex_);
  ++full_;
  room_.wait(lock, [&] { return ended_ || place == taken_ || ahead_ + size <= kMostBytesAhead; });
  --full_;
  if (ended_) return;
  ahead_ += size;
  lock.unlock();
  const Clock::time_point start = Clock::now();
  readFile(wanted, file);
  lock.lock();
  spent_ += Clock::now() - start;
  slots_[place % slots_.size()] = {std::move(file), &reader, true};
  if (place == taken_) ready_.notify_one();
}

}  // namespace velra
