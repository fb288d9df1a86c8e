// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FolderScan.h"

#include <algorithm>
#include <utility>

#include "base/Paths.h"
#include "platform/files/FolderWatch.h"
#include "protocol/OpenDocument.h"

namespace velra {

std::size_t FolderScan::list() {
  watch_ = std::make_unique<FolderWatch>(folder_);
  listed_ = listFiles(folder_ + "*.xml");
  return listed_->names.size();
}

void FolderScan::read(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures) {
  if (!listed_) list();
  FolderListing listing = *std::exchange(listed_, std::nullopt);
  reason_ = std::move(listing.reason);
  if (listing.links) watch_.reset();
  files_.resize(listing.names.size());
  std::vector<ParsedAhead::Wanted> wanted;
  std::vector<std::size_t> waiting;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    std::string path = folder_ + listing.names[i];
    if (const RegisteredRef loaded = document.loadedObject(path)) {
      files_[i] = answerOf(*loaded);
    } else {
      wanted.push_back({std::move(path), {}});
      waiting.push_back(i);
    }
  }
  readScanned(app, document, std::move(wanted), pictures, [&](std::size_t place, ScannedFile read) {
    if (read.otherNames) watch_.reset();
    files_[waiting[place]] = std::move(read);
  });
  for (std::size_t i = 0; i < files_.size(); ++i) files_[i].name = std::move(listing.names[i]);
  index();
  isRead_ = true;
}

void FolderScan::index() {
  byName_.reserve(files_.size());
  for (std::size_t i = 0; i < files_.size(); ++i) {
    byName_.emplace(files_[i].name, i);
    if (!files_[i].readable()) unreadable_.push_back(i);
    forEachRelation(files_[i], [&](std::uint64_t key) { related_.push_back({key, i}); });
  }
  std::sort(related_.begin(), related_.end());
  slots_.set(related_);
}

std::vector<const ScannedFile*> FolderScan::relevant(Relation relation,
                                                     const std::vector<ObjectKind>& kinds,
                                                     const std::string& guid) const {
  std::vector<std::size_t> offsets = unreadable_;
  const std::string path = strAbsolutePath(guid);
  for (const ObjectKind kind : kinds) {
    const std::uint64_t key = relationKey(relation, kind, path);
    auto at = slots_.find(related_, key);
    for (; at != related_.end() && at->key == key; ++at) {
      const ScannedFile& file = files_[at->file];
      if (file.kind == kind && file.pointsAt(relation, path)) offsets.push_back(at->file);
    }
  }
  std::sort(offsets.begin(), offsets.end());
  offsets.erase(std::unique(offsets.begin(), offsets.end()), offsets.end());
  std::vector<const ScannedFile*> files;
  for (const std::size_t offset : offsets) files.push_back(&files_[offset]);
  return files;
}

std::optional<LoadedFields> FolderScan::takeFields(const std::string& name, ObjectKind kind) {
  const auto at = byName_.find(name);
  if (at == byName_.end()) return std::nullopt;
  ScannedFile& file = files_[at->second];
  if (file.kind != kind) return std::nullopt;
  return std::exchange(file.fields, std::nullopt);
}

std::vector<std::string> FolderScan::relativesOfRest() const {
  std::vector<std::string> paths;
  for (const ScannedFile& file : files_) {
    if (!file.fields) continue;
    paths.insert(paths.end(), file.ownRelatives.begin(), file.ownRelatives.end());
    if (!file.partOf.empty()) paths.push_back(file.partOf);
  }
  return paths;
}

std::unique_ptr<KnownFolder> FolderScan::handOver() {
  KnownFolder::Start start{files_, std::exchange(related_, {}), reason_};
  return std::make_unique<KnownFolder>(folder_, std::move(watch_), std::move(start));
}

bool FolderScan::checkConsistency() const {
  if (byName_.size() != files_.size()) return false;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const ScannedFile& file = files_[i];
    const auto named = byName_.find(file.name);
    if (named == byName_.end() || named->second != i) return false;
    const bool reported = std::binary_search(unreadable_.begin(), unreadable_.end(), i);
    if (reported == file.readable()) return false;
    if (file.partOf.empty() || !file.kind) continue;
    const auto found = relevant(Relation::PartOf, {*file.kind}, file.partOf);
    if (std::find(found.begin(), found.end(), &file) == found.end()) return false;
  }
  return true;
}

}  // namespace velra
