// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "schema/FieldDeclaration.h"
#include "values/Value.h"

namespace velra {

class ApplicationModule;
class CloseLists;
class FieldList;
class SchemaElement;

/// What a write can do to the references in a field: add some, or at most take some away.
enum class ReferenceChange { MayAdd, AddsNone };

/// Told of every write to a field that it watches; an index over identifiers keeps itself true so.
/// The objects that hold the fields stand above this folder: it is the wall between the two.
class ContentWatcher {
 public:
  virtual ~ContentWatcher() = default;
  virtual void contentChanged(const SchemaElement& element, ReferenceChange change) = 0;
};

/// One field of an object: its value and its flags. What the schema says of it, and who watches it,
/// is known by the list in which it stands. A large document has more than a million fields, and so
/// the way to the list goes over a mark that stands before all fields of the object.
class SchemaElement {
 public:
  SchemaElement(const SchemaElement&) = delete;
  SchemaElement& operator=(const SchemaElement&) = delete;
  // Within its list alone.
  SchemaElement(SchemaElement&&) noexcept = default;
  SchemaElement& operator=(SchemaElement&&) noexcept = default;
  ~SchemaElement() = default;

  bool bValid() const { return bValid_; }
  bool bChanged() const { return bChanged_; }
  bool bReadOnly() const { return declaration().bReadOnly; }
  bool bIgnore() const { return declaration().bIgnore; }
  const std::string& strComment() const { return declaration().strComment; }
  const Value& vContent() const { return vContent_; }
  const std::string& strName() const { return declaration().strName; }
  const std::string& strLowerName() const { return declaration().strLowerName; }
  const std::string& strCloseList() const { return declaration().strCloseList; }
  velra::tyType tyType() const { return declaration().type; }

  /// Sets the value and marks the field as assigned and changed, in one write for the watcher.
  void assign(Value content);
  /// Marks the field as not assigned any more, and changed. The value stays: a parent counts
  /// whether its field is assigned or not.
  void unassign();

  void setBValid(bool valid);
  void setBChanged(bool changed);
  void setBReadOnly(bool readOnly);
  void setBIgnore(bool ignore);
  void setStrComment(const std::string& comment);
  void setVContent(Value content);
  /// Changes the set in the field where it stands; nothing happens when it holds none.
  void changeList(const std::function<void(StringList&)>& change);
  /// Takes one member, counted from 0, out of the set in the field.
  void removeFromList(std::size_t offset);
  void setStrName(const std::string& name);
  void setStrCloseList(const std::string& closeList);
  void setTyType(velra::tyType type);

  /// The type's name as the forms and the dialog of assigned fields show it.
  std::string strType() const;

  /// True for the types that a form or a text listing can show.
  bool bIsHumanReadable() const;

  /// Puts the default of the type into `vContent` and touches no flag; structural types keep what
  /// they have. For a closed list the first item of the list in `lists`.
  void Init(const ApplicationModule& app, const CloseLists& lists);

 private:
  friend class FieldList;

  /// The mark, at place 0, and a field at a place from 1; kOverflow beyond what fits.
  explicit SchemaElement(FieldList& list) : vContent_(Value::mark(&list)) {}
  explicit SchemaElement(std::size_t place) { setPlace(place); }

  std::size_t place() const { return placeLow_ + (std::size_t{placeHigh_} << 16); }
  void setPlace(std::size_t place);
  FieldList& list() const;

  const FieldDeclaration& declaration() const;
  void changeDeclaration(const std::function<void(FieldDeclaration&)>& change);
  void tellWatcher(ReferenceChange change);

  [[no_unique_address]] Value vContent_;  // the others stand in its last bytes
  std::uint8_t bChanged_ : 1 = 0;
  std::uint8_t bValid_ : 1 = 0;
  std::uint8_t placeHigh_ : 6 = 0;
  std::uint16_t placeLow_ = 0;
};

}  // namespace velra
