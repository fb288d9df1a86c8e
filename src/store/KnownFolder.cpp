// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/KnownFolder.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/files/Files.h"
#include "protocol/OpenDocument.h"
#include "store/ObjectRegistry.h"
#include "store/ReferenceIndex.h"

namespace velra {

namespace {

constexpr std::string_view kXmlEnding = ".xml";

// As the listing takes names.
bool isXmlName(std::string_view name) {
  return name.size() >= kXmlEnding.size() &&
         equalIgnoringAsciiCase(name.substr(name.size() - kXmlEnding.size()), kXmlEnding);
}

bool byName(const ScannedFile* a, const ScannedFile* b) {
  return a->name < b->name;
}

bool sameName(const ScannedFile* a, const ScannedFile* b) {
  return a->name == b->name;
}

}  // namespace

KnownFolder::KnownFolder(std::string folder, std::unique_ptr<FolderWatch> watch, Start start)
    : folder_(std::move(folder)),
      reason_(std::move(start.reason)),
      watch_(std::move(watch)),
      related_(std::move(start.related)) {
  files_.reserve(start.files.size());
  for (ScannedFile& read : start.files) {
    File file = added(read.name);
    // Of those that an object was made of the relations are enough, and few enough for all.
    const bool taken = read.readable() && read.kind && !read.fields;
    file.unchanged = read.stamp.exists;
    file.stamp = read.stamp;
    file.told = read.stamp.exists && !taken;
    if (file.told) {
      read.fields.reset();
      told_.add(std::move(read));
    }
    files_.push_back(file);
  }
  std::erase_if(related_, [&](KnownRelation& relation) {
    const File& file = files_[relation.file];
    relation.file = file.key;
    return file.told || !file.stamp.exists;
  });
  related_.shrink_to_fit();
  names_.shrink_to_fit();
}

KnownFolder::File KnownFolder::added(const std::string& name) {
  File file;
  file.key = pathKey(folder_ + name);
  file.name = static_cast<std::uint32_t>(names_.size());
  names_.append(name.c_str(), name.size() + 1);
  return file;
}

KnownFolder::Files::iterator KnownFolder::find(const std::string& name) {
  const auto at = std::lower_bound(
      files_.begin(), files_.end(), name,
      [&](const File& file, const std::string& wanted) { return nameOf(file) < wanted; });
  return at != files_.end() && nameOf(*at) == name ? at : files_.end();
}

void KnownFolder::bringUpToDate(ApplicationModule& app, OpenDocument& document,
                                PictureStamps* pictures) {
  const auto news = watch_ && reason_.empty() ? watch_->take() : std::nullopt;
  if (news) {
    takeNews(*news);
  } else {
    listAnew();
  }
  askWhoIsLoaded(document.collObjects());
  if (news) dropVanished();
  readChanged(app, document, pictures);
}

void KnownFolder::takeNews(const std::set<std::string>& names) {
  Files fresh;
  for (const std::string& name : names) {
    if (!isXmlName(name)) continue;
    const auto known = find(name);
    if (known == files_.end()) {
      fresh.push_back(added(name));
    } else {
      known->unchanged = false;
    }
  }
  const auto middle = static_cast<std::ptrdiff_t>(files_.size());
  files_.insert(files_.end(), fresh.begin(), fresh.end());
  std::inplace_merge(
      files_.begin(), files_.begin() + middle, files_.end(),
      [&](const File& a, const File& b) { return std::string_view(nameOf(a)) < nameOf(b); });
}

void KnownFolder::listAnew() {
  FolderListing listing = listFiles(folder_ + "*.xml");
  reason_ = std::move(listing.reason);
  if (listing.links) watch_.reset();
  const std::string names = std::exchange(names_, {});
  const Files before = std::exchange(files_, {});
  auto known = before.begin();
  const auto nameBefore = [&] { return std::string_view(names.c_str() + known->name); };
  for (const std::string& name : listing.names) {
    for (; known != before.end() && nameBefore() < name; ++known)
      told_.remove(std::string(nameBefore()));
    File file = added(name);
    if (known != before.end() && nameBefore() == name) {
      const std::uint32_t place = std::exchange(file, *known++).name;
      file.name = place;
      file.unchanged = false;
    }
    files_.push_back(file);
  }
  for (; known != before.end(); ++known) told_.remove(std::string(nameBefore()));
}

void KnownFolder::askWhoIsLoaded(ObjectRegistry& objects) {
  const std::uint64_t before = std::exchange(departures_, objects.departures());
  const bool gone = departures_ != before;
  for (File& file : files_) {
    if (!file.loaded || gone) file.loaded = objects.isTaken(file.key);
  }
}

// A file that came may have gone again. Of those with an object nothing is asked.
void KnownFolder::dropVanished() {
  std::erase_if(files_, [&](const File& file) {
    if (file.loaded || file.unchanged) return false;
    const std::string path = folder_ + nameOf(file);
    // What a link leads to changes unseen.
    if (bLinkExists(path)) watch_.reset();
    if (bPlainFileExists(path)) return false;
    if (file.told) told_.remove(nameOf(file));
    return true;
  });
}

void KnownFolder::readChanged(ApplicationModule& app, OpenDocument& document,
                              PictureStamps* pictures) {
  std::vector<ParsedAhead::Wanted> wanted;
  std::vector<std::size_t> waiting;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const File& file = files_[i];
    if (file.loaded || file.unchanged) continue;
    wanted.push_back({folder_ + nameOf(file), file.stamp});
    waiting.push_back(i);
  }
  readScanned(app, document, std::move(wanted), pictures, [&](std::size_t place, ScannedFile read) {
    note(files_[waiting[place]], std::move(read));
  });
  for (const std::size_t i : waiting) files_[i].unchanged = true;
}

void KnownFolder::note(File& file, ScannedFile read) {
  if (read.otherNames) watch_.reset();
  read.name = nameOf(file);
  file.stamp = read.stamp;
  file.told = true;
  told_.add(std::move(read));
}

// Of a file that was read in an opening a number is known, which others may share: so it is read
// again. True when there is one.
bool KnownFolder::markUntold(std::uint64_t key) {
  std::set<std::uint64_t> pointing;
  auto at = std::lower_bound(related_.begin(), related_.end(), KnownRelation{key, 0});
  for (; at != related_.end() && at->key == key; ++at) pointing.insert(at->file);
  bool any = false;
  for (File& file : files_) {
    if (pointing.empty()) break;
    if (file.loaded || file.told || !pointing.contains(file.key)) continue;
    file.stamp = {};
    file.unchanged = false;
    any = true;
  }
  return any;
}

std::vector<const ScannedFile*> KnownFolder::relevant(ApplicationModule& app,
                                                      OpenDocument& document, Relation relation,
                                                      const std::vector<ObjectKind>& kinds,
                                                      const std::string& guid) {
  const std::string path = strAbsolutePath(guid);
  bool any = false;
  for (const ObjectKind kind : kinds) any = markUntold(relationKey(relation, kind, path)) || any;
  if (any) readChanged(app, document, nullptr);
  std::vector<const ScannedFile*> found = told_.relevant(relation, kinds, path);
  std::erase_if(found, [this](const ScannedFile* file) { return find(file->name)->loaded; });
  addHolders(document, kinds, guid, found);
  std::sort(found.begin(), found.end(), byName);
  found.erase(std::unique(found.begin(), found.end(), sameName), found.end());
  return found;
}

// A loaded object counts where its file stands in the folder.
void KnownFolder::addHolders(OpenDocument& document, const std::vector<ObjectKind>& kinds,
                             const std::string& guid, std::vector<const ScannedFile*>& found) {
  holders_.clear();
  for (const ObjectRef& holder : document.collObjects().references().holdersOf(guid)) {
    if (std::find(kinds.begin(), kinds.end(), holder->kind()) == kinds.end()) continue;
    const std::string path = strAbsolutePath(holder->strGUID());
    if (folderOf(path) != folder_ || document.loadedObject(path) != holder) continue;
    ScannedFile file;
    file.name = path.substr(folder_.size());
    if (find(file.name) != files_.end() && bPlainFileExists(path)) {
      holders_.push_back(std::move(file));
    }
  }
  for (const ScannedFile& holder : holders_) found.push_back(&holder);
}

bool KnownFolder::checkConsistency() const {
  std::size_t told = 0;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const File& file = files_[i];
    const std::string name = nameOf(file);
    if (i > 0 && name <= nameOf(files_[i - 1])) return false;
    if (file.key != pathKey(folder_ + name) || file.told != told_.holds(name)) return false;
    told += file.told ? 1 : 0;
  }
  const auto byKey = [](const KnownRelation& a, const KnownRelation& b) { return a.key < b.key; };
  return told == told_.size() && std::is_sorted(related_.begin(), related_.end(), byKey);
}

}  // namespace velra
