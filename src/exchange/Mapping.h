// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "exchange/ExportFormat.h"

namespace velra {

/// One value of a field at its place in a standard.
struct MappedValue {
  std::string element;
  std::string qualifier;  // a role, a type: what the element says of it besides; or ""
  std::string text;
  std::string language;  // of a translation, as in `kContentLanguages`; or ""
};

/// Which field of the schema is which element of a standard. A mapping file has lines of the form
/// `Class.Field = element qualifier`, where the qualifier may be missing and may have blanks; empty
/// lines and those that begin with "#" count for nothing.
class Mapping {
 public:
  /// True for an element that objects of a class may have.
  using KnowsElement = std::function<bool(ObjectKind, const std::string&)>;

  /// The file that the options name, else `mappings/STANDARD.map` beside the schema. Raises
  /// ExchangeFailure with line and field for a line that has another form, for an element that is
  /// none, and for a field that the document's schema does not have, but only when
  /// the options name the file: the shipped one belongs to the shipped schema.
  Mapping(const Content& content, const ExportOptions& options, const std::string& standard,
          const KnowsElement& knows);

  /// What an object says, in the order of its fields; a field of two lines is there twice.
  std::vector<MappedValue> valuesOf(const ContentObject& object) const;

  /// A text of a field that has no line.
  struct Unmapped {
    std::string field;  // with its class, as mapping files name it
    std::string text;
  };

  /// What its assigned fields without a line say to people.
  std::vector<Unmapped> unmapped(const ContentObject& object) const;

 private:
  struct Rule {
    int line;
    ObjectKind kind;
    std::string field;
    std::string element;
    std::string qualifier;
  };

  /// One text of a field, or its name in each language.
  static void addValue(const Rule& rule, const ContentField& field, std::size_t number,
                       std::vector<MappedValue>& values);
  static std::vector<const ContentField*> readableFields(const ContentObject& object);
  void readLine(int number, const std::string& line, const KnowsElement& knows);
  void checkFields(const Content& content) const;
  [[noreturn]] void refuse(int line, const std::string& what) const;

  std::string path_;
  std::vector<Rule> rules_;
};

}  // namespace velra
