// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velra::test {

/// The text of one object's file, as the program itself writes it.
class ObjectText {
 public:
  explicit ObjectText(const std::string& className) : className_(className) {}

  ObjectText& text(const std::string& field, const std::string& value);
  ObjectText& guids(const std::string& field, const std::vector<std::string>& values);
  /// Times in milliseconds.
  ObjectText& span(const std::string& field, int start, int end, const std::string& file = "");
  /// An element as it stands.
  ObjectText& raw(const std::string& xml);

  std::string xml() const;

 private:
  std::string className_;
  std::string content_;
};

/// The files of a document `film` in a folder. Objects are named as in "version1"; the class
/// follows from the letters.
class DocumentFiles {
 public:
  enum class Identifiers { Relative, Absolute };

  explicit DocumentFiles(const TemporaryFolder& folder, Identifiers kind = Identifiers::Relative)
      : folder_(folder), kind_(kind) {}

  std::string documentPath() const { return folder_ / "film.xml"; }
  /// The absolute path of an object's file.
  std::string path(const std::string& name) const { return folder_ / relativePath(name); }
  /// The identifier by which other files refer to the object.
  std::string id(const std::string& name) const;
  std::vector<std::string> ids(const std::vector<std::string>& names) const;

  void write(const std::string& name, const ObjectText& object) const;
  /// A file of the data folder that is no object's.
  void writeRaw(const std::string& fileName, const std::string& bytes) const;

  void document(const std::vector<std::string>& versions) const;
  void version(const std::string& name, const std::vector<std::string>& media) const;
  void media(const std::string& name, const std::vector<std::string>& storages) const;
  void storage(const std::string& name, const std::string& collocation) const;

  /// A main expression of a Version; a segment (milliseconds) of another expression, which the
  /// named sibling follows ("" for none).
  void mainExpression(const std::string& name, const std::string& version) const;
  void segment(const std::string& name, const std::string& parent, int start, int end,
               const std::string& followedBy = "") const;

  /// A ladder of one Version, Media and Storage, with a main Video, Audio and Transcript.
  void smallLadder() const;

  static std::string classOf(const std::string& name);

 private:
  static std::string relativePath(const std::string& name);

  const TemporaryFolder& folder_;
  Identifiers kind_;
};

}  // namespace velra::test
