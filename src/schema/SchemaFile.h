// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"
#include "schema/FieldDeclaration.h"

namespace velra {

class ApplicationModule;
class CloseLists;

/// Lets a name be looked up without a copy of it.
struct NameHash {
  using is_transparent = void;  // NOLINT(readability-identifier-naming): the library's name
  std::size_t operator()(std::string_view name) const {
    return std::hash<std::string_view>{}(name);
  }
};

/// The fields of one class, or the message that tells why they cannot be read.
struct ClassDeclaration {
  std::shared_ptr<const FieldTable> fields;
  /// Offsets of the fields of a name; more than one only where the schema repeats a name.
  std::unordered_map<std::string, std::vector<std::size_t>, NameHash, std::equal_to<>> offsets;
  std::string message;
};

/// One parsed schema file.
class SchemaFile {
 public:
  SchemaFile(const ApplicationModule& app, std::string path);

  const std::string& path() const { return path_; }
  const FileStamp& stamp() const { return stamp_; }

  /// The message of a file that could not be parsed; "" when it was.
  const std::string& message() const { return message_; }

  /// The prefix of the root's name; new objects are made with it.
  std::string rootPrefix() const;

  /// The fields of a class, read once. A closed list that is not yet in `lists` joins them.
  const ClassDeclaration& classDeclaration(const std::string& className, CloseLists& lists) const;

 private:
  const ApplicationModule& app_;
  std::string path_;
  FileStamp stamp_;
  XmlDocument document_;
  std::string message_;
  mutable std::map<std::string, ClassDeclaration> classes_;
};

/// The schema of a document's objects: parsed anew only when the path, or the file's size or time,
/// has changed.
class DocumentSchemas {
 public:
  explicit DocumentSchemas(const ApplicationModule& app) : app_(app) {}

  /// Null for an empty path.
  std::shared_ptr<const SchemaFile> file(const std::string& path);

  /// The path in the settings.
  std::string strXSDPath() const;

  /// While an object of this kind lives, settings and schema are not looked at again: an opening
  /// asks for them once and not for each object.
  class Hold {
   public:
    explicit Hold(DocumentSchemas& schemas);
    ~Hold();
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    DocumentSchemas& schemas_;
  };

 private:
  const ApplicationModule& app_;
  std::shared_ptr<const SchemaFile> file_;
  int holds_ = 0;
  std::string heldPath_;
  bool held_ = false;  // file_ was looked at since the outermost hold began
};

}  // namespace velra
