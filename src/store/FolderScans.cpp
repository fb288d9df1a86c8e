// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FolderScans.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "protocol/OpenDocument.h"

namespace velra {

FolderScans::Opening::Opening(FolderScans& scans) : scans_(scans) {
  if (scans_.app_.gAVDoc) {
    hold_ = std::make_unique<DocumentSchemas::Hold>(scans_.app_.gAVDoc->shared().schemas);
  }
  if (scans_.depth_++ > 0) return;
  ++scans_.opening_;
  scans_.unlisted_.clear();
}

FolderScans::Opening::~Opening() {
  if (--scans_.depth_ > 0) return;
  for (auto& [path, folder] : scans_.folders_) {
    if (folder.known) folder.known->endSearch();
    if (folder.scan && folder.scan->isRead()) {
      folder.known = folder.scan->handOver();
      scans_.app_.lateRelease.take(std::move(folder.scan));
    }
    folder.scan.reset();
  }
  scans_.pictures_ = {};
}

FolderScans::Folder& FolderScans::folderAt(const std::string& path) {
  if (generation_ != currentFolderGeneration()) {
    generation_ = currentFolderGeneration();
    folders_.clear();
  }
  Folder& folder = folders_[path];
  if (!folder.scan && !folder.known) folder.scan = std::make_unique<FolderScan>(path);
  return folder;
}

std::size_t FolderScans::filesIn(const std::string& folder) {
  const Folder& found = folderAt(withSeparator(strAbsolutePath(folder)));
  return found.scan ? found.scan->list() : 0;
}

void FolderScans::lookAt(Folder& folder) {
  if (folder.lookedAtIn == opening_) return;
  PictureStamps* pictures = looksAtPictures_ ? &pictures_ : nullptr;
  if (folder.scan) {
    folder.scan->read(app_, *app_.gAVDoc, pictures);
  } else {
    folder.known->bringUpToDate(app_, *app_.gAVDoc, pictures);
  }
  folder.lookedAtIn = opening_;
}

std::vector<const ScannedFile*> FolderScans::relevant(const std::string& folder, Relation relation,
                                                      const std::vector<ObjectKind>& kinds,
                                                      const std::string& guid) {
  if (!app_.gAVDoc) raise(kNoObject);
  const std::string path = withSeparator(strAbsolutePath(folder));
  Folder& found = folderAt(path);
  lookAt(found);
  const std::string& reason = found.scan ? found.scan->reason() : found.known->reason();
  if (!reason.empty()) unlisted_ = path + " cannot be listed (" + reason + ")";
  return found.scan ? found.scan->relevant(relation, kinds, guid)
                    : found.known->relevant(app_, *app_.gAVDoc, relation, kinds, guid);
}

std::optional<LoadedFields> FolderScans::takeFields(const std::string& guid, ObjectKind kind) {
  if (depth_ == 0) return std::nullopt;
  const std::string path = strAbsolutePath(guid);
  const std::string folder = folderOf(path);
  const auto known = folders_.find(folder);
  if (known == folders_.end()) return std::nullopt;
  const std::string name = path.substr(folder.size());
  return known->second.scan ? known->second.scan->takeFields(name, kind)
                            : known->second.known->takeFields(name, kind);
}

std::optional<FileStamp> FolderScans::goodPicture(const std::string& path) const {
  const auto known = pictures_.find(path);
  return known == pictures_.end() ? std::nullopt : std::optional(known->second);
}

std::vector<std::string> FolderScans::relativesOfRest(const std::string& folder) const {
  const auto known = folders_.find(withSeparator(strAbsolutePath(folder)));
  if (known == folders_.end() || !known->second.scan) return {};
  return known->second.scan->relativesOfRest();
}

bool FolderScans::checkConsistency() const {
  for (const auto& [path, folder] : folders_) {
    if (folder.scan && !folder.scan->checkConsistency()) return false;
    if (folder.known && !folder.known->checkConsistency()) return false;
  }
  return true;
}

}  // namespace velra
