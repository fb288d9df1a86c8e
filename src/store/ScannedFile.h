// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
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

/// What a loaded object tells of its file.
ScannedFile answerOf(const RegisteredObject& loaded, std::string name);

/// What a file says that has been read. A run-time error of its fields is kept for the object.
ScannedFile contentOf(ApplicationModule& app, OpenDocument& document, const ParsedAhead::File& read,
                      std::string name);

/// The absolute path of the picture of the key frame that a file names; "" for none.
std::string keyFrameNamedBy(const XmlDocument& parsed);

}  // namespace velra
