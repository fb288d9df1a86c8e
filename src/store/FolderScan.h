// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files/Files.h"
#include "protocol/ObjectKind.h"
#include "store/KeySlots.h"
#include "store/KnownFolder.h"
#include "store/ScannedFile.h"

namespace velra {

class ApplicationModule;
class OpenDocument;

/// The XML files of one folder, each read once for an opening that makes objects of many of them. A
/// search then looks at its answers alone and at the files that must be reported each time.
class FolderScan {
 public:
  /// `folder` is absolute, with a separator at its end.
  explicit FolderScan(std::string folder) : folder_(std::move(folder)) {}

  /// Lists the folder, for `read`. The number of its files.
  std::size_t list();

  /// Reads what is not loaded, and builds the index. The good pictures of what is read join
  /// `pictures`, if there is such a list.
  void read(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures);
  /// False before that, and when it was broken off.
  bool isRead() const { return isRead_; }

  /// Why the folder could not be listed; "" when it could.
  const std::string& reason() const { return reason_; }

  /// The files that a search for objects of the kinds pointing at an identifier has to look at, in
  /// the order of the listing: those that point at it, and those that cannot be read.
  std::vector<const ScannedFile*> relevant(Relation relation, const std::vector<ObjectKind>& kinds,
                                           const std::string& guid) const;

  /// Hands over the fields that were read ahead for a file; nothing when there are none.
  std::optional<LoadedFields> takeFields(const std::string& name, ObjectKind kind);

  /// The normal forms of what those files refer to of which no object was made.
  std::vector<std::string> relativesOfRest() const;

  /// What stays of it for the searches after the opening. The scan is of no use then, and what is
  /// left in it takes a while to go.
  std::unique_ptr<KnownFolder> handOver();

  /// True when each file is found by its name and by what it points at; for tests.
  bool checkConsistency() const;

 private:
  void index();

  const std::string folder_;
  std::string reason_;
  bool isRead_ = false;
  std::unique_ptr<FolderWatch> watch_;   // since before the listing
  std::optional<FolderListing> listed_;  // until it is read
  std::vector<ScannedFile> files_;
  std::unordered_map<std::string_view, std::size_t> byName_;  // the names are the files'
  std::vector<KnownRelation> related_;                        // sorted; files are offsets
  KeySlots slots_;                                            // of these
  std::vector<std::size_t> unreadable_;
};

}  // namespace velra
