// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
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
  std::size_t Count() const { return elements_.size(); }
  void Remove(std::size_t position);

  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

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

  std::int16_t iNumValid() const;
  std::int16_t iNumValidAndReadable() const;
  bool bChanged() const;

 protected:
  FieldList() = default;
  ~FieldList() = default;
  FieldList(FieldList&&) = default;
  FieldList(const FieldList&) = delete;
  FieldList& operator=(const FieldList&) = delete;
  FieldList& operator=(FieldList&&) = delete;

  std::vector<SchemaElement>& elements() { return elements_; }
  const std::vector<SchemaElement>& elements() const { return elements_; }

 private:
  std::vector<SchemaElement> elements_;
  std::vector<std::string> keys_;  // empty while no element has a key
};

}  // namespace velra
