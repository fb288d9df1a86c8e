// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "schema/SchemaElement.h"

namespace velra {

/// The fields of one object, in the schema's order, found by place, key and name. Positions count
/// from 1.
class FieldList {
 public:
  SchemaElement& Add(tyType type, const std::string& strCloseList, const std::string& strName,
                     Value vContent, const std::string& strComment, bool bIgnore, bool bReadOnly,
                     bool bChanged, bool bValid, const std::string& sKey = {});

  SchemaElement& Item(std::size_t position);
  const SchemaElement& Item(std::size_t position) const;
  SchemaElement& Item(const std::string& key);
  std::size_t Count() const { return elements_.size() - 1; }
  void Remove(std::size_t position);

  auto begin() { return elements().begin(); }
  auto end() { return elements().end(); }
  auto begin() const { return elements().begin(); }
  auto end() const { return elements().end(); }

  /// The first field of exactly this name, or of this lower-cased name; null when there is none.
  SchemaElement* field(std::string_view strName);
  const SchemaElement* field(std::string_view strName) const;
  SchemaElement* relationField(std::string_view strLowerName);
  const SchemaElement* relationField(std::string_view strLowerName) const;
  /// The text of the first assigned field of the name; "" when there is none.
  std::string assignedText(std::string_view strName) const;
  /// The text of a relation field, assigned or not; "" for a field that is absent or holds no text.
  std::string relationText(std::string_view strLowerName) const;
  /// The set in a relation field; null when it is absent or not assigned.
  const StringList* relationList(std::string_view strLowerName) const;

  /// Is told of each write to a field from now on; it outlives the list.
  void watch(ContentWatcher* watcher) { watcher_ = watcher; }

  /// Stands for what the fields hold: no other list has the number, and each write to a field gives
  /// another one. Never 0. To be asked by one thread.
  std::uint64_t stateNumber() const;

  std::int16_t iNumValid() const;
  std::int16_t iNumValidAndReadable() const;
  bool bChanged() const;

 protected:
  FieldList();
  ~FieldList() = default;
  FieldList(const FieldList&) = delete;
  FieldList& operator=(const FieldList&) = delete;

  std::span<SchemaElement> elements() { return std::span(elements_).subspan(1); }
  std::span<const SchemaElement> elements() const { return std::span(elements_).subspan(1); }

  /// Puts the fields of a class behind those that are there, all unassigned.
  void declare(const std::shared_ptr<const FieldTable>& table);

  /// Brings the texts of all values into one block. A field that is written to later has its own.
  void packTexts();

 private:
  friend class SchemaElement;

  const FieldDeclaration& declarationOf(const SchemaElement& element) const {
    return *(*table_)[element.place() - 1];
  }
  void forgetState() { state_ = 0; }
  void redeclare(const SchemaElement& element, FieldDeclaration declaration);
  FieldTable ownTable() const;
  ContentWatcher* watcher() const { return watcher_; }

  std::unique_ptr<char[]> texts_;            // packed; values that stand there come behind it
  std::shared_ptr<const FieldTable> table_;  // of the class, or of this list alone
  std::vector<SchemaElement> elements_;      // behind the mark
  std::vector<std::string> keys_;            // empty while no element has a key
  ContentWatcher* watcher_ = nullptr;
  mutable std::uint64_t state_ = 0;  // 0 from a write on until somebody asks
};

}  // namespace velra
