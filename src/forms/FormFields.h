// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "forms/FieldBox.h"

namespace velra {

class CrossLanguageFields;
class SEColl;
class SchemaElement;

/// The field boxes of a loaded form: one for each field that is assigned, readable and not ignored,
/// in the order of the fields.
class FormFields {
 public:
  /// Makes the boxes of all fields. `crossLanguage` may be null. A value that does not fit its
  /// control raises kTypeMismatch, a closed list that is not there kInvalidArgument.
  void addFields(const SEColl& secol, CrossLanguageFields* crossLanguage);

  // The builders, one for each kind of control. `position` is the field's among all fields.
  FieldBox& AddTextBox(const std::string& comment, const std::string& name, const std::string& text,
                       bool readOnly, std::size_t position);
  FieldBox& AddSetStrings(const std::string& comment, const std::string& name,
                          const StringList& strings, bool readOnly, std::size_t position);
  FieldBox& AddDateBox(const std::string& comment, const std::string& name, const Date& date,
                       bool readOnly, std::size_t position);
  FieldBox& AddCheck(const std::string& comment, const std::string& name, bool checked,
                     bool readOnly, std::size_t position);
  FieldBox& AddCombo(const std::string& comment, const std::string& name,
                     const std::vector<std::string>& items, const std::string& text, bool readOnly,
                     std::size_t position);
  /// The one control over the vocabulary; the caller fills it.
  FieldBox& AddSetStringsCL(const std::string& comment, const std::string& name,
                            std::unique_ptr<SetOfRows> rows, bool readOnly, std::size_t position);

  /// The boxes in the order of their making. Their addresses stay.
  std::deque<FieldBox>& colControls() { return colControls_; }
  const std::deque<FieldBox>& colControls() const { return colControls_; }
  int Count() const { return static_cast<int>(colControls_.size()); }

 private:
  void addField(const SEColl& secol, const SchemaElement& field, std::size_t position);
  FieldBox& addBox(ControlFamily family, const std::string& comment, const std::string& name,
                   bool readOnly, std::size_t position);

  std::deque<FieldBox> colControls_;
  std::array<int, 6> counters_{};  // of each control family
};

}  // namespace velra
