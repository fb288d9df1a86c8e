// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/RunTimeError.h"
#include "platform/files/Files.h"
#include "protocol/DescribedObject.h"
#include "schema/InstanceDocument.h"
#include "schema/SEColl.h"

namespace velra {

class ApplicationModule;
class OpenDocument;
class SchemaFile;

/// The fields of an object's file, read ahead of the object.
struct LoadedFields {
  std::unique_ptr<SEColl> secol;
  InstanceDocument domDoc;
  std::shared_ptr<const SchemaFile> domSchema;
  std::uint64_t print = 0;  // of the file: `contentPrint`
};

/// One XML file of a folder, as a search meets it.
struct ScannedFile {
  std::string name;
  FileStamp stamp;                    // when it was read; of no file while a loaded object answers
  std::optional<ObjectKind> kind;     // by the root; nothing for another one or an unreadable file
  std::string reason;                 // the parser's reason for that
  std::string message;                // why an object of the class cannot be read from it
  std::optional<RunTimeError> error;  // the run-time error that reading it ends in
  std::vector<std::string> ownRelatives;  // normal forms of what its own relation points at
  std::string partOf;                     // normal form of its parent expression
  std::optional<LoadedFields> fields;     // until the object takes them

  bool readable() const { return reason.empty() && message.empty() && !error; }
};

/// Pictures that have been looked at, by their absolute paths, and what they were then.
using PictureStamps = std::unordered_map<std::string, FileStamp>;

/// What the searches know of the XML files of one folder. Each file is read once for an opening; a
/// search then looks at its answers alone and at the files that must be reported each time.
class FolderScan {
 public:
  explicit FolderScan(std::string folder) : folder_(std::move(folder)) {}

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
  void takeOver(std::vector<ScannedFile>& before);
  void readAll(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures);
  void index();

  std::string folder_;
  std::string reason_;
  std::vector<ScannedFile> files_;
  std::unordered_map<std::string, std::size_t> byName_;
  std::unordered_map<std::string, std::vector<std::size_t>> byRelation_;
  std::vector<std::size_t> unreadable_;
};

}  // namespace velra
