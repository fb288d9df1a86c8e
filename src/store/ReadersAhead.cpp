// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ReadersAhead.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/RunTimeError.h"
#include "platform/files/BitmapCheck.h"

namespace velra {

namespace {

// How far readers go ahead: an object's file has some kilobytes, and its nodes as much.
constexpr std::size_t kMostAhead = 128;
constexpr std::uint64_t kMostBytesAhead = 8'000'000;  // of large files
constexpr std::uint64_t kLargeFile = 100'000;

// So many at once are handed over: to be woken for each single one costs more than the file.
constexpr std::size_t kMostReady = 48;

// A file takes a few dozen microseconds where nothing is waited for.
constexpr std::chrono::microseconds kWaitsForShelf{400};
constexpr std::size_t kFirstFiles = 8;  // which tell nothing of that
constexpr unsigned kMostReaders = 16;

constexpr std::chrono::milliseconds kBetweenCalls{100};
constexpr std::chrono::milliseconds kMostForEnd{200};  // longer than any file of a disk takes

bool isKnown(const ParsedAhead::Wanted& wanted, ParsedAhead::File& file) {
  if (wanted.known.exists) file.stamp = fileStamp(wanted.path);
  return file.known = wanted.known.exists && file.stamp == wanted.known;
}

}  // namespace

ReadersAhead::ReadersAhead(std::vector<Wanted> files, PictureOf pictureOf)
    : wanted_(std::move(files)),
      pictureOf_(std::move(pictureOf)),
      slots_(std::min(kMostAhead, wanted_.size())) {}

void ReadersAhead::start() {
  const Lock lock(mutex_);
  for (unsigned i = std::clamp(std::thread::hardware_concurrency(), 1U, 4U); i > 0; --i) {
    addReader();
  }
}

// Where the system refuses one more, those that there are do the work.
void ReadersAhead::addReader() {
  Reader& reader = readers_.emplace_back();
  try {
    reader.thread = std::thread([self = shared_from_this(), &reader] { self->work(reader); });
    ++working_;
  } catch (const std::system_error&) {
    readers_.pop_back();
  }
}

void ReadersAhead::end() {
  Lock lock(mutex_);
  ended_ = true;
  room_.notify_all();
  ready_.wait_for(lock, kMostForEnd, [this] { return working_ == 0; });
  const bool all = working_ == 0;
  lock.unlock();
  for (Reader& reader : readers_) {
    all ? reader.thread.join() : reader.thread.detach();
  }
}

void ReadersAhead::takeInto(File& file, const std::function<void()>& waits) {
  if (readers_.empty()) {
    const Wanted& wanted = wanted_[taken_++];
    file = {};
    if (!isKnown(wanted, file)) parse(wanted, readXml(wanted.path), file);
    return;
  }
  Lock lock(mutex_);
  Slot& slot = slots_[taken_ % slots_.size()];
  while (!ready_.wait_for(lock, kBetweenCalls, [&slot] { return slot.ready; })) {
    lock.unlock();
    if (waits) waits();
    lock.lock();
  }
  if (takenFrom_) takenFrom_->gone.push_back(std::move(file.document));
  file = std::move(slot.file);
  takenFrom_ = slot.reader;
  slot.ready = false;
  --read_;
  ahead_ -= slot.large;
  ++taken_;
  if (isSlow() && readers_.size() < kMostReaders) addReader();
  const bool room = full_ > 0 || begun_ - taken_ <= slots_.size() / 2;
  lock.unlock();
  if (room) room_.notify_all();
}

bool ReadersAhead::isSlow() const {
  const std::size_t files = taken_ + read_;
  return files > kFirstFiles && spent_ > kWaitsForShelf * files;
}

bool ReadersAhead::mayBegin() const {
  return begun_ < wanted_.size() && begun_ - taken_ < slots_.size();
}

void ReadersAhead::work(Reader& reader) {
  Lock lock(mutex_);
  while (true) {
    room_.wait(lock, [this] { return ended_ || mayBegin(); });
    if (ended_) break;
    std::vector<XmlDocument> gone = std::exchange(reader.gone, {});
    const std::size_t place = begun_++;
    lock.unlock();
    gone.clear();
    Slot slot = read(place, reader);
    lock.lock();
    if (!ended_) give(place, std::move(slot));
  }
  reader.gone.clear();
  --working_;
  ready_.notify_one();
}

ReadersAhead::Slot ReadersAhead::read(std::size_t place, Reader& reader) {
  Slot slot;
  slot.reader = &reader;
  const Clock::time_point start = Clock::now();
  try {
    fill(place, slot);
  } catch (...) {
    // No error may end on a reader's thread: whoever takes the file gets it.
    slot.file.raised = std::current_exception();
  }
  slot.spent += Clock::now() - start;
  return slot;
}

void ReadersAhead::give(std::size_t place, Slot slot) {
  spent_ += slot.spent;
  slot.ready = true;
  slots_[place % slots_.size()] = std::move(slot);
  ++read_;
  const bool many = read_ >= kMostReady || full_ > 0 || begun_ == wanted_.size() || isSlow();
  if (many && slots_[taken_ % slots_.size()].ready) ready_.notify_one();
}

void ReadersAhead::fill(std::size_t place, Slot& slot) {
  const Wanted& wanted = wanted_[place];
  if (isKnown(wanted, slot.file)) return;
  FileBytes read = readFile(wanted.path, kLargeFile);
  if (read.stamp.size > kLargeFile) {
    slot.large = read.stamp.size;
    if (!waitForRoom(place, slot)) return;
    read = readXml(wanted.path);
  }
  if (!ended_) parse(wanted, read, slot.file);
}

void ReadersAhead::parse(const Wanted& wanted, const FileBytes& read, File& file) const {
  // Where the file could not be opened there may be one all the same.
  file.stamp = read.stamp.exists ? read.stamp : fileStamp(wanted.path);
  file.otherNames = read.otherNames;
  file.parsed = file.document.load(wanted.path, read);
  const std::string path = file.parsed && pictureOf_ ? pictureOf_(file.document) : std::string();
  if (path.empty()) return;
  try {
    file.picture = {path, checkBitmap(path)};
  } catch (const RunTimeError&) {
    // It is told of where the picture is wanted, if it is bad then.
  }
}

bool ReadersAhead::waitForRoom(std::size_t place, Slot& slot) {
  Lock lock(mutex_);
  const Clock::time_point start = Clock::now();
  ++full_;
  ready_.notify_one();
  room_.wait(lock,
             [&] { return ended_ || place == taken_ || ahead_ + slot.large <= kMostBytesAhead; });
  --full_;
  slot.spent -= Clock::now() - start;
  ahead_ += slot.large;
  return !ended_;
}

}  // namespace velra
