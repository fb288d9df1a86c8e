// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FilesBehind.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <system_error>
#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/files/ContentPrint.h"
#include "platform/files/FileMoves.h"
#include "platform/files/Files.h"
#include "store/GuardedFiles.h"
#include "store/NewFileNames.h"

namespace velra {

namespace {

// On a disk of this machine one thread makes the files of a folder sooner than two, which wait for
// each other at the folder.
constexpr std::size_t kMostThreads = 4;
// So many at most, to stay small; the thread of the document then waits until there are few, since
// to be woken for each single one would cost more than the file.
constexpr std::size_t kMostWaiting = 64;
constexpr std::size_t kFewWaiting = 16;
// A thread sleeps until there are so many, for the same reason.
constexpr std::size_t kWorthWaking = 16;
// The window paints 45 ms after it did last: waits of such a length would make that twice as long.
constexpr std::chrono::milliseconds kBetweenWaits{15};

}  // namespace

FilesBehind::FilesBehind(NewFileNames& names, GuardedFiles& guard, HiddenFolder hidden,
                         std::function<void()> waits)
    : names_(names), guard_(guard), hidden_(std::move(hidden)), waits_(std::move(waits)) {
  startThread();
}

void FilesBehind::startThread() {
  try {
    if (threads_.size() < kMostThreads) threads_.emplace_back([this] { work(); });
  } catch (const std::system_error&) {
    // Where the system refuses threads those that are there do, or the files are made at once.
  }
}

FilesBehind::~FilesBehind() {
  join();
}

void FilesBehind::write(const std::string& guid, std::string bytes, std::string status) {
  add({Kind::Write, guid, {}, std::move(bytes), std::move(status)});
}

void FilesBehind::copy(const std::string& from, const std::string& to, std::string status) {
  add({Kind::Copy, to, from, {}, std::move(status)});
}

void FilesBehind::move(const std::string& from, const std::string& to, std::string status) {
  if (files_.empty()) hidden_.make();
  addNow({Kind::Move, to, from, {}, std::move(status)});
}

void FilesBehind::bringToDisk(const std::string& folder, std::string status) {
  add({Kind::ToDisk, folder, {}, {}, std::move(status)});
}

void FilesBehind::addNow(File file) {
  Lock lock(mutex_);
  wanted_ = files_.size();
  handed_.notify_all();
  done_.wait(lock, [this] { return atRest(); });
  files_.push_back(std::move(file));
  if (failed_) return;
  ++next_;
  make(files_.back());
  failed_ = !files_.back().made;
}

bool FilesBehind::atRest() const {
  return busy_ == 0 && (next_ == files_.size() || failed_);
}

void FilesBehind::add(File file) {
  if (files_.empty()) hidden_.make();
  if (threads_.empty()) return addNow(std::move(file));
  Lock lock(mutex_);
  // A copy is two names until it is made.
  if (file.kind == Kind::Write && files_.size() - next_ >= kMostWaiting) {
    waitForRoom(lock);
  }
  files_.push_back(std::move(file));
  if ((files_.size() - next_) % kWorthWaking != 0) return;
  wanted_ = files_.size();
  lock.unlock();
  handed_.notify_one();
}

void FilesBehind::waitForRoom(Lock& lock) {
  const auto hasRoom = [this] { return files_.size() - next_ <= kFewWaiting || failed_; };
  while (!done_.wait_for(lock, kBetweenWaits, hasRoom)) {
    const bool slowFolder = !toDisk_;
    lock.unlock();
    if (slowFolder) startThread();
    waits_();
    lock.lock();
  }
}

void FilesBehind::work() {
  Lock lock(mutex_);
  while (true) {
    handed_.wait(lock, [this] { return complete_ || failed_ || next_ < wanted_; });
    if (failed_ || next_ == files_.size()) return;
    while (!failed_ && next_ < files_.size()) makeNext(lock);
  }
}

void FilesBehind::makeNext(Lock& lock) {
  File& file = files_[next_++];  // a deque leaves it in its place
  ++busy_;
  if (file.kind == Kind::ToDisk) toDisk_ = true;
  lock.unlock();
  make(file);
  lock.lock();
  --busy_;
  if (file.kind == Kind::ToDisk) toDisk_ = false;
  failed_ = failed_ || !file.made;
  if (failed_ || atRest() || files_.size() - next_ <= kFewWaiting) done_.notify_one();
}

void FilesBehind::make(File& file) const {
  const NewFileIs seen = hidden_.bMade() ? NewFileIs::SeenAtOnce : NewFileIs::SeenWhole;
  const std::string place = hidden_.placeOf(file.to);
  try {
    if (file.kind == Kind::Write) {
      file.print = contentPrint(file.bytes);
      file.failure = writeNewFile(place, std::exchange(file.bytes, {}), seen);
    } else if (file.kind == Kind::Move) {
      MoveFileTo(file.from, place);
    } else if (file.kind == Kind::Copy) {
      CopyToNewFile(file.from, place, seen);
    } else {
      file.failure = syncFolder(file.to);
    }
  } catch (const RunTimeError& error) {
    file.failure = hidden_.strTold(error.description());
  } catch (const std::exception& error) {
    file.failure = error.what();
  }
  file.made = file.failure.empty();
}

FilesBehind::Failure FilesBehind::failure() {
  Lock lock(mutex_);
  if (!failed_) return {};
  done_.wait(lock, [this] { return atRest(); });
  const auto file = std::find_if(files_.begin(), files_.end(),
                                 [](const File& one) { return !one.failure.empty(); });
  const bool toTell =
      file->kind == Kind::Write && file->failure.find(file->to) == std::string::npos;
  return {file->failure, toTell ? file->to : std::string(), file->status};
}

void FilesBehind::join() {
  {
    const Lock lock(mutex_);
    complete_ = true;
  }
  handed_.notify_all();
  for (std::thread& thread : threads_) {
    if (thread.joinable()) thread.join();
  }
}

// What has failed comes over as well, to be taken back from where it was to be.
void FilesBehind::bringOver() {
  if (hidden_.bTakesPlace()) return;
  for (File& file : files_) {
    if (file.made && file.kind != Kind::ToDisk) bringOver(file);
  }
  takeBackLeft();
}

// One for which there is no room any more is not made.
void FilesBehind::bringOver(File& file) {
  try {
    MoveFileTo(hidden_.placeOf(file.to), file.to);
  } catch (const RunTimeError& error) {
    file.made = false;
    file.failure = error.description();
    failed_ = true;
  }
}

void FilesBehind::takeBackLeft() {
  for (const File& file : files_) {
    if (!file.made && file.kind != Kind::ToDisk) takeBack(file);
  }
  hidden_.remove();
}

// A picture that was moved goes back, now or later.
void FilesBehind::takeBack(const File& file) const {
  const std::string place = hidden_.placeOf(file.to);
  if (!bFileExists(place)) return;
  if (file.kind != Kind::Move) {
    deleteFile(place);
    return;
  }
  try {
    MoveFileTo(place, file.from);
  } catch (const RunTimeError&) {
    return;  // the person has been told of the first failure
  }
}

FilesBehind::Outcome FilesBehind::finish() {
  join();
  bringOver();
  Outcome outcome{{}, failure()};
  for (const File& file : files_) outcome.made.push_back(file.made);
  return outcome;
}

void FilesBehind::note() {
  for (const File& file : files_) {
    if (file.made && file.kind != Kind::ToDisk) note(file);
  }
}

void FilesBehind::note(const File& file) {
  if (file.kind == Kind::Write) {
    guard_.noteContent(strAbsolutePath(file.to), file.print);
    names_.written(file.to);
  } else {
    if (file.kind == Kind::Move) names_.went(file.from);
    names_.came(file.to);
  }
}

}  // namespace velra
