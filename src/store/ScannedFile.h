// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
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
#include "store/ParsedAhead.h"

namespace velra {

class ApplicationModule;
class OpenDocument;
class SchemaFile;

/// Pictures that have been looked at, by their absolute paths, and what they were then.
using PictureStamps = std::unordered_map<std::string, FileStamp>;

/// The relation that a search follows: what an object lists or belongs to, or its parent
/// expression.
enum class Relation { Own, PartOf };

/// The fields of an object's file, read ahead of the object.
struct LoadedFields {
  std::unique_ptr<SEColl> secol;
  InstanceDocument domDoc;
  std::shared_ptr<const SchemaFile> domSchema;
  std::uint64_t print = 0;  // of the file: `contentPrint`
  FileStamp stamp;          // before it was read
};

/// One XML file of a folder, as a search meets it.
struct ScannedFile {
  std::string name;
  FileStamp stamp;                    // when it was read; of no file when it was not
  bool otherNames = false;            // it may change through another folder
  std::optional<ObjectKind> kind;     // by the root; nothing for another one or an unreadable file
  std::string reason;                 // the parser's reason for that
  std::string message;                // why an object of the class cannot be read from it
  std::optional<RunTimeError> error;  // the run-time error that reading it ends in
  std::vector<std::string> ownRelatives;  // normal forms of what its own relation points at
  std::string partOf;                     // normal form of its parent expression
  std::optional<LoadedFields> fields;     // until the object takes them

  bool readable() const { return reason.empty() && message.empty() && !error; }
  /// `path` is a normal form.
  bool pointsAt(Relation relation, const std::string& path) const;
};

/// A number for objects of a kind that point at a normal form; others may have the same.
std::uint64_t relationKey(Relation relation, ObjectKind kind, std::string_view path);
/// Calls for each of these numbers of a file.
void forEachRelation(const ScannedFile& file, const std::function<void(std::uint64_t)>& call);

/// What a loaded object tells of its file, without the name.
ScannedFile answerOf(const RegisteredObject& loaded);

/// Reads files by threads, ahead of this one, and gives what each says with its place in the list,
/// in order and without a name; nothing of those that are as they were known. A run-time error of
/// its fields is kept for the object. The good pictures that they name join `pictures`, unless it
/// is null.
void readScanned(ApplicationModule& app, OpenDocument& document,
                 std::vector<ParsedAhead::Wanted> files, PictureStamps* pictures,
                 const std::function<void(std::size_t, ScannedFile)>& came);

}  // namespace velra
