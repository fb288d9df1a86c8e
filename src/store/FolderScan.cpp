// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FolderScan.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "protocol/ClassRules.h"
#include "protocol/MainWindow.h"
#include "protocol/OpenDocument.h"
#include "store/ParsedAhead.h"

namespace velra {

namespace {

std::size_t relationKey(FolderScan::Relation relation, ObjectKind kind, std::string_view path) {
  constexpr std::size_t kKinds = 16;
  const auto which = 2 * static_cast<std::size_t>(kind) + static_cast<std::size_t>(relation);
  return std::hash<std::string_view>{}(path) * (2 * kKinds) + which;
}

bool pointsAt(const ScannedFile& file, FolderScan::Relation relation, const std::string& path) {
  if (relation == FolderScan::Relation::PartOf) return file.partOf == path;
  const auto& own = file.ownRelatives;
  return std::find(own.begin(), own.end(), path) != own.end();
}

}  // namespace

std::size_t FolderScan::list() {
  listed_ = listFiles(folder_ + "*.xml");
  return listed_->names.size();
}

void FolderScan::refresh(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures) {
  byName_.clear();
  related_.clear();
  unreadable_.clear();
  std::vector<ScannedFile> before = std::exchange(files_, {});
  if (!listed_) list();
  FolderListing listing = *std::exchange(listed_, std::nullopt);
  reason_ = std::move(listing.reason);
  for (std::string& name : listing.names) {
    ScannedFile file;
    file.name = std::move(name);
    files_.push_back(std::move(file));
  }
  takeOver(before);
  readAll(app, document, pictures);
  index();
}

void FolderScan::readAll(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures) {
  std::vector<ParsedAhead::Wanted> wanted;
  std::vector<ScannedFile*> waiting;
  for (ScannedFile& file : files_) {
    std::string path = folder_ + file.name;
    if (const RegisteredRef loaded = document.loadedObject(path)) {
      file = answerOf(*loaded, std::move(file.name));
    } else {
      wanted.push_back({std::move(path), file.stamp});
      waiting.push_back(&file);
    }
  }
  ParsedAhead::Calls calls;
  if (pictures) calls.pictureOf = keyFrameNamedBy;
  if (app.gMainForm) calls.waits = [&app] { app.gMainForm->workWaits(); };
  ParsedAhead ahead(std::move(wanted), std::move(calls));
  for (ScannedFile* file : waiting) {
    const ParsedAhead::File& read = ahead.take();
    if (read.known) continue;
    if (app.gMainForm) app.gMainForm->workSteps();
    if (read.picture) pictures->insert_or_assign(read.picture->path, read.picture->stamp);
    *file = contentOf(app, document, read, std::move(file->name));
  }
}

void FolderScan::takeOver(std::vector<ScannedFile>& before) {
  std::unordered_map<std::string_view, ScannedFile*> known;
  for (ScannedFile& file : before) known.emplace(file.name, &file);
  for (ScannedFile& file : files_) {
    const auto at = known.find(file.name);
    if (at != known.end()) file = std::move(*at->second);
  }
}

void FolderScan::index() {
  byName_.clear();
  related_.clear();
  unreadable_.clear();
  byName_.reserve(files_.size());
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const ScannedFile& file = files_[i];
    byName_.emplace(file.name, i);
    if (!file.readable()) unreadable_.push_back(i);
    if (!file.kind) continue;
    for (const std::string& path : file.ownRelatives) {
      related_.push_back({relationKey(Relation::Own, *file.kind, path), i});
    }
    if (!file.partOf.empty()) {
      related_.push_back({relationKey(Relation::PartOf, *file.kind, file.partOf), i});
    }
  }
  std::sort(related_.begin(), related_.end());
}

std::vector<std::size_t> FolderScan::relevant(Relation relation,
                                              const std::vector<ObjectKind>& kinds,
                                              const std::string& guid) const {
  std::vector<std::size_t> offsets = unreadable_;
  const std::string path = strAbsolutePath(guid);
  for (const ObjectKind kind : kinds) {
    const std::size_t key = relationKey(relation, kind, path);
    auto at = std::lower_bound(related_.begin(), related_.end(), Related{key, 0});
    for (; at != related_.end() && at->key == key; ++at) {
      const ScannedFile& file = files_[at->offset];
      if (file.kind == kind && pointsAt(file, relation, path)) offsets.push_back(at->offset);
    }
  }
  std::sort(offsets.begin(), offsets.end());
  offsets.erase(std::unique(offsets.begin(), offsets.end()), offsets.end());
  return offsets;
}

std::optional<LoadedFields> FolderScan::takeFields(const std::string& name, ObjectKind kind) {
  const auto at = byName_.find(name);
  if (at == byName_.end()) return std::nullopt;
  ScannedFile& file = files_[at->second];
  if (file.kind != kind || !file.fields) return std::nullopt;
  file.stamp = {};  // its object answers from now on; without one it is read again
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

void FolderScan::endOpening() {
  listed_.reset();
  // What a loaded object answers need not be kept beside it.
  std::erase_if(files_, [](const ScannedFile& file) { return !file.stamp.exists; });
  files_.shrink_to_fit();
  for (ScannedFile& file : files_) file.fields.reset();
  index();
  related_ = {};
}

bool FolderScan::checkConsistency() const {
  if (byName_.size() != files_.size()) return false;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const ScannedFile& file = files_[i];
    const auto named = byName_.find(file.name);
    if (named == byName_.end() || named->second != i) return false;
    const bool reported = std::binary_search(unreadable_.begin(), unreadable_.end(), i);
    if (reported == file.readable()) return false;
    if (related_.empty() || file.partOf.empty() || !file.kind) continue;
    const auto found = relevant(Relation::PartOf, {*file.kind}, file.partOf);
    if (!std::binary_search(found.begin(), found.end(), i)) return false;
  }
  return true;
}

}  // namespace velra
