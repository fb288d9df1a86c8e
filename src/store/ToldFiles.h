// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "store/ScannedFile.h"

namespace velra {

/// What files said that were read, by their names, found by what they point at.
class ToldFiles {
 public:
  std::size_t size() const { return files_.size(); }
  bool holds(const std::string& name) const { return files_.contains(name); }

  /// In place of what the file of that name said before.
  void add(ScannedFile file);
  void remove(const std::string& name);

  /// Those that point at a normal form and are of the kinds, and those that cannot be read; in no
  /// order, perhaps one twice, and good until the next change.
  std::vector<const ScannedFile*> relevant(Relation relation, const std::vector<ObjectKind>& kinds,
                                           const std::string& path);

  /// Hands over the fields of a file; nothing when there are none.
  std::optional<LoadedFields> takeFields(const std::string& name, ObjectKind kind);
  /// Drops all that nobody took.
  void dropFields();

 private:
  void index();

  std::map<std::string, ScannedFile> files_;
  bool indexed_ = false;
  std::unordered_multimap<std::uint64_t, const ScannedFile*> related_;  // by `relationKey`
  std::vector<const ScannedFile*> unreadable_;
};

}  // namespace velra
