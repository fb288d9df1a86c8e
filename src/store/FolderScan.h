// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files/Files.h"
#include "protocol/ObjectKind.h"
#include "store/ScannedFile.h"

namespace velra {

class ApplicationModule;
class OpenDocument;

/// Pictures that have been looked at, by their absolute paths, and what they were then.
using PictureStamps = std::unordered_map<std::string, FileStamp>;

/// What the searches know of the XML files of one folder. Each file is read once for an opening; a
/// search then looks at its answers alone and at the files that must be reported each time.
class FolderScan {
 public:
  explicit FolderScan(std::string folder) : folder_(std::move(folder)) {}

  /// Lists the folder for the next refresh of this opening. The number of its files.
  std::size_t list();

  /// Lists the folder anew, reads what is not loaded and not known, and builds the index. The good
  /// pictures of what is read join `pictures`, if there is such a list.
  void refresh(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures);

  /// Why the folder could not be listed; "" when it could.
  const std::string& reason() const { return reason_; }

  /// The relation that a search follows.
  enum class Relation { Own, PartOf };

  /// The files that a search for objects of the kinds pointing at an identifier has to look at, in
  /// the order of the listing: those that point at it, and those that cannot be read.
  std::vector<std::size_t> relevant(Relation relation, const std::vector<ObjectKind>& kinds,
                                    const std::string& guid) const;

  const ScannedFile& file(std::size_t offset) const { return files_[offset]; }

  /// Hands over the fields that were read ahead for a file; nothing when there are none.
  std::optional<LoadedFields> takeFields(const std::string& name, ObjectKind kind);

  /// The normal forms of what those files refer to of which no object was made.
  std::vector<std::string> relativesOfRest() const;

  /// Drops what was read ahead and nobody took.
  void endOpening();

  /// True when each file is found by its name and by what it points at; for tests. The relations
  /// are known while an opening lasts.
  bool checkConsistency() const;

 private:
  // That a file points at something, of which the key is a number that others may share.
  struct Related {
    std::size_t key;
    std::size_t offset;
    bool operator<(const Related& other) const {
      return key != other.key ? key < other.key : offset < other.offset;
    }
  };

  void takeOver(std::vector<ScannedFile>& before);
  void readAll(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures);
  void index();

  std::string folder_;
  std::string reason_;
  std::optional<FolderListing> listed_;  // for the next refresh
  std::vector<ScannedFile> files_;
  std::unordered_map<std::string_view, std::size_t> byName_;  // the names are the files'
  std::vector<Related> related_;                              // sorted
  std::vector<std::size_t> unreadable_;
};

}  // namespace velra
