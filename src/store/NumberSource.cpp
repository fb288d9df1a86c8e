// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/NumberSource.h"

#include <algorithm>
#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/files/Files.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr int kHighestNumber = 32767;

}  // namespace

NumberSource::Listing::Listing(NumberSource& numbers, const std::string& folder)
    : numbers_(numbers) {
  numbers_.families_.clear();
  numbers_.listedFolder_ = withSeparator(strAbsolutePath(folder));
  for (std::string& name : namesIn(numbers_.listedFolder_)) {
    numbers_.listedNames_.insert(std::move(name));
  }
}

NumberSource::Listing::~Listing() {
  numbers_.families_.clear();
  numbers_.listedFolder_.clear();
  numbers_.listedNames_.clear();
}

void NumberSource::Listing::fileCame(const std::string& path) {
  const std::string& folder = numbers_.listedFolder_;
  if (path.starts_with(folder)) numbers_.listedNames_.insert(path.substr(folder.size()));
}

void NumberSource::Listing::fileWent(const std::string& path) {
  const std::string& folder = numbers_.listedFolder_;
  if (!path.starts_with(folder)) return;
  numbers_.listedNames_.erase(path.substr(folder.size()));
  numbers_.freed(pathKey(path));
}

bool NumberSource::fileTaken(const std::string& path) const {
  if (!listedFolder_.empty() && path.starts_with(listedFolder_)) {
    return listedNames_.contains(path.substr(listedFolder_.size()));
  }
  return bSomethingAt(path);
}

NumberSource::Family& NumberSource::familyOf(const std::string& prefix, const std::string& suffix) {
  const auto known = std::find_if(families_.begin(), families_.end(), [&](const Family& one) {
    return one.prefix == prefix && one.suffix == suffix;
  });
  if (known != families_.end()) return *known;
  families_.push_back({prefix, suffix, strAbsolutePath(prefix), 1, {}, {}, {}});
  return families_.back();
}

std::string NumberSource::takeFromGaps(Family& family) {
  for (auto gap = family.gaps.begin(); gap != family.gaps.end();) {
    std::string path = pathOf(family, *gap);
    if (objects_.isTaken(keyOf(family, *gap))) {
      gap = family.gaps.erase(gap);
    } else if (fileTaken(path)) {
      // Within a listing files neither come nor go, so the gap is closed for good.
      if (listedFolder_.empty()) family.filled.insert(*gap);
      gap = family.gaps.erase(gap);
    } else {
      return path;
    }
  }
  return {};
}

std::string NumberSource::take(const std::string& prefix, const std::string& suffix) {
  Family& family = familyOf(prefix, suffix);
  if (listedFolder_.empty()) takeNews(family);
  std::string path = takeFromGaps(family);
  if (!path.empty()) return path;
  for (; family.frontier <= kHighestNumber; ++family.frontier) {
    const PathKey key = keyOf(family, family.frontier);
    if (!objects_.isTaken(key)) {
      path = pathOf(family, family.frontier);
      if (!fileTaken(path)) return path;
      if (listedFolder_.empty()) family.gaps.insert(family.frontier);
    }
    family.passed.emplace(key, family.frontier);
  }
  raise(kOverflow);
}

// The files of removed objects lie in their gaps by the thousand.
void NumberSource::takeNews(const Family& family) {
  const std::string folder = folderOf(family.key);
  if (folder != watchedFolder_) watch_ = std::make_unique<FolderWatch>(folder);
  const auto news = folder == watchedFolder_ ? watch_->take() : std::nullopt;
  watchedFolder_ = folder;
  if (news) {
    for (const std::string& name : *news) freed(pathKey(folder + name));
    return;
  }
  for (Family& any : families_) any.gaps.merge(any.filled);
}

PathKey NumberSource::keyOf(const Family& family, int number) {
  return pathKey(family.key + std::to_string(number) + family.suffix);
}

std::string NumberSource::pathOf(const Family& family, int number) {
  return family.prefix + std::to_string(number) + family.suffix;
}

void NumberSource::freed(PathKey key) {
  for (Family& family : families_) {
    const auto number = family.passed.find(key);
    if (number == family.passed.end()) continue;
    family.filled.erase(number->second);
    family.gaps.insert(number->second);
  }
}

std::unique_ptr<FolderWatch> NumberSource::takeWatch() {
  watchedFolder_.clear();
  return std::move(watch_);
}

bool NumberSource::checkConsistency() const {
  for (const Family& family : families_) {
    for (int number = 1; number < family.frontier; ++number) {
      const std::string path = pathOf(family, number);
      const bool taken = objects_.find(path) || (!listedFolder_.empty() && fileTaken(path));
      const bool asked = family.gaps.contains(number) || family.filled.contains(number);
      if (!taken && !asked) return false;
    }
  }
  return true;
}

}  // namespace velra
