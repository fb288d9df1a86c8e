// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FolderScans.h"

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
  for (auto& [path, folder] : scans_.folders_) folder.scan.endOpening();
  scans_.pictures_ = {};
}

FolderScans::Folder& FolderScans::knownFolder(const std::string& path) {
  if (generation_ != currentFolderGeneration()) {
    generation_ = currentFolderGeneration();
    folders_.clear();
  }
  return folders_.try_emplace(path, Folder{FolderScan(path)}).first->second;
}

std::size_t FolderScans::filesIn(const std::string& folder) {
  return knownFolder(withSeparator(strAbsolutePath(folder))).scan.list();
}

FolderScan& FolderScans::of(const std::string& folder) {
  if (!app_.gAVDoc) raise(kNoObject);
  const std::string path = withSeparator(strAbsolutePath(folder));
  Folder& known = knownFolder(path);
  if (depth_ == 0 || known.listedIn != opening_) {
    known.scan.refresh(app_, *app_.gAVDoc, depth_ > 0 && looksAtPictures_ ? &pictures_ : nullptr);
  }
  known.listedIn = opening_;
  const std::string& reason = known.scan.reason();
  if (!reason.empty()) unlisted_ = path + " cannot be listed (" + reason + ")";
  return known.scan;
}

std::optional<LoadedFields> FolderScans::takeFields(const std::string& guid, ObjectKind kind) {
  if (depth_ == 0) return std::nullopt;
  const std::string path = strAbsolutePath(guid);
  const std::string folder = folderOf(path);
  const auto known = folders_.find(folder);
  if (known == folders_.end()) return std::nullopt;
  return known->second.scan.takeFields(path.substr(folder.size()), kind);
}

std::optional<FileStamp> FolderScans::goodPicture(const std::string& path) const {
  const auto known = pictures_.find(path);
  return known == pictures_.end() ? std::nullopt : std::optional(known->second);
}

std::vector<std::string> FolderScans::relativesOfRest(const std::string& folder) const {
  const auto known = folders_.find(withSeparator(strAbsolutePath(folder)));
  return known == folders_.end() ? std::vector<std::string>()
                                 : known->second.scan.relativesOfRest();
}

bool FolderScans::checkConsistency() const {
  for (const auto& [path, folder] : folders_) {
    if (!folder.scan.checkConsistency()) return false;
  }
  return true;
}

}  // namespace velra
