// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/FolderWatch.h"

#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

namespace velra {

namespace {

constexpr std::uint32_t kHappenings =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB;
constexpr std::uint32_t kLost = IN_Q_OVERFLOW | IN_IGNORED | IN_UNMOUNT;
constexpr std::size_t kBytesAtOnce = 65'536;  // many events of a name each

// What other machines write to a shelf that they share is told to nobody here.
bool isOfThisMachine(const std::string& folder) {
  constexpr decltype(std::declval<struct statfs>().f_type) kLocal[] = {
      EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC, BTRFS_SUPER_MAGIC,
      F2FS_SUPER_MAGIC, TMPFS_MAGIC,     OVERLAYFS_SUPER_MAGIC};
  struct statfs status {};
  if (::statfs(folder.c_str(), &status) != 0) return false;
  return std::find(std::begin(kLocal), std::end(kLocal), status.f_type) != std::end(kLocal);
}

// False when an event says that others were lost.
bool takeNames(const char* bytes, std::size_t count, std::set<std::string>& names) {
  for (std::size_t at = 0; at < count;) {
    inotify_event event{};
    std::memcpy(&event, bytes + at, sizeof(event));
    if (event.mask & kLost) return false;
    at += sizeof(event);
    // The name is filled up with zeros.
    if (event.len > 0) names.emplace(bytes + at, ::strnlen(bytes + at, event.len));
    at += event.len;
  }
  return true;
}

}  // namespace

FolderWatch::FolderWatch(std::string folder) : folder_(std::move(folder)) {
  begin();
}

std::optional<FolderWatch::Place> FolderWatch::placeOf(const std::string& folder) {
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0) return std::nullopt;
  return Place{status.st_dev, status.st_ino};
}

// The path may lead elsewhere at any time, so it is asked before and after.
void FolderWatch::begin() {
  events_.reset();
  const std::optional<Place> place = placeOf(folder_);
  if (!place || !isOfThisMachine(folder_)) return;
  FileHandle events(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  if (!events) return;
  if (::inotify_add_watch(events.number(), folder_.c_str(), kHappenings | IN_ONLYDIR) < 0) return;
  if (placeOf(folder_) != place) return;
  watched_ = *place;
  events_.emplace(std::move(events));
}

std::optional<std::set<std::string>> FolderWatch::take() {
  std::set<std::string> names;
  bool all = events_ && placeOf(folder_) == watched_;
  std::vector<char> bytes(all ? kBytesAtOnce : 0);
  while (all) {
    const ssize_t count = ::read(events_->number(), bytes.data(), bytes.size());
    if (count <= 0) {
      if (errno == EINTR) continue;
      all = errno == EAGAIN;
      break;
    }
    all = takeNames(bytes.data(), static_cast<std::size_t>(count), names);
  }
  if (all) return names;
  begin();
  return std::nullopt;
}

}  // namespace velra
