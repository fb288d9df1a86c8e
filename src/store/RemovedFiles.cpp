// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RemovedFiles.h"

#include <algorithm>
#include <utility>

#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// An object that was removed before its first save has never had a file, so its number was free for
// a new object. The file that this one is saved under must not go for the other's sake: after each
// save the living win over the list.
//
// A MediaObject is not asked. The picture of a removed segment stays registered for as long as the
// document is open, though nothing needs its file any more, and while that file lies there no new
// picture gets its name.
bool needsFile(ObjectRegistry& objects, const std::string& guid) {
  const RegisteredRef object = objects.find(guid);
  return object && object->kind() != ObjectKind::MediaObject;
}

}  // namespace

void RemovedFiles::append(std::vector<Stretch>& stretches, Stretch more) {
  if (!stretches.empty() && stretches.back().end == more.begin) {
    stretches.back().end = more.end;
  } else {
    stretches.push_back(more);
  }
}

std::vector<std::string> RemovedFiles::identifiers() const {
  std::vector<std::string> listed;
  listed.reserve(size());
  for (const auto& [begin, end] : list_) {
    for (std::size_t place = begin; place < end; ++place) listed.push_back(all_[place]);
  }
  return listed;
}

std::size_t RemovedFiles::size() const {
  std::size_t count = 0;
  for (const auto& [begin, end] : list_) count += end - begin;
  return count;
}

void RemovedFiles::add(const std::string& guid) {
  all_.push_back(guid);
  append(list_, {all_.size() - 1, all_.size()});
}

void RemovedFiles::note(const std::deque<std::string>& removed) {
  if (notedCount_ == removed.size()) return;
  const std::size_t begin = all_.size();
  all_.insert(all_.end(), removed.begin() + static_cast<std::ptrdiff_t>(notedCount_),
              removed.end());
  append(noted_, {begin, all_.size()});
  notedCount_ = removed.size();
}

void RemovedFiles::addNoted() {
  for (const Stretch& stretch : noted_) append(list_, stretch);
}

const std::vector<bool>& RemovedFiles::needed(ObjectRegistry& objects) {
  // One that was needed may have been removed since.
  if (anyNeeded_ || arrivals_ != objects.arrivals()) needed_.clear();
  arrivals_ = objects.arrivals();
  anyNeeded_ = anyNeeded_ && !needed_.empty();
  for (std::size_t place = needed_.size(); place < all_.size(); ++place) {
    needed_.push_back(needsFile(objects, all_[place]));
    anyNeeded_ = anyNeeded_ || needed_.back();
  }
  return needed_;
}

void RemovedFiles::keepFilesOf(ObjectRegistry& objects) {
  needed(objects);
  if (!anyNeeded_) return;
  for (const auto& [begin, end] : std::exchange(list_, {})) {
    for (std::size_t place = begin; place < end; ++place) {
      if (!needed_[place]) append(list_, {place, place + 1});
    }
  }
}

std::string RemovedFiles::deleteAll(
    const std::function<std::string(const std::string&)>& deleteFile) {
  std::string failed;
  std::string lastReason;
  for (const auto& [begin, end] : std::exchange(list_, {})) {
    for (std::size_t place = begin; place < end; ++place) {
      const std::string reason = deleteFile(all_[place]);
      if (reason.empty()) continue;
      failed += (failed.empty() ? "" : " ") + all_[place];
      lastReason = reason;
    }
  }
  return failed.empty() ? std::string() : failed + ": " + lastReason;
}

}  // namespace velra
