// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ToldFiles.h"

#include <utility>

namespace velra {

void ToldFiles::add(ScannedFile file) {
  indexed_ = false;
  std::string name = file.name;
  files_.insert_or_assign(std::move(name), std::move(file));
}

void ToldFiles::remove(const std::string& name) {
  indexed_ = false;
  files_.erase(name);
}

void ToldFiles::index() {
  if (std::exchange(indexed_, true)) return;
  related_.clear();
  unreadable_.clear();
  for (const auto& entry : files_) {
    const ScannedFile& file = entry.second;
    if (!file.readable()) unreadable_.push_back(&file);
    forEachRelation(file, [&](std::uint64_t key) { related_.emplace(key, &file); });
  }
}

std::vector<const ScannedFile*> ToldFiles::relevant(Relation relation,
                                                    const std::vector<ObjectKind>& kinds,
                                                    const std::string& path) {
  index();
  std::vector<const ScannedFile*> found = unreadable_;
  for (const ObjectKind kind : kinds) {
    const auto [first, last] = related_.equal_range(relationKey(relation, kind, path));
    for (auto at = first; at != last; ++at) {
      const ScannedFile& file = *at->second;
      if (file.kind == kind && file.pointsAt(relation, path)) found.push_back(&file);
    }
  }
  return found;
}

std::optional<LoadedFields> ToldFiles::takeFields(const std::string& name, ObjectKind kind) {
  const auto file = files_.find(name);
  if (file == files_.end() || file->second.kind != kind) return std::nullopt;
  return std::exchange(file->second.fields, std::nullopt);
}

void ToldFiles::dropFields() {
  for (auto& [name, file] : files_) file.fields.reset();
}

}  // namespace velra
