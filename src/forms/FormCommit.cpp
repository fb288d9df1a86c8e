// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormCommit.h"

#include <utility>

#include "forms/CrossLanguageFields.h"
#include "forms/FieldValues.h"
#include "forms/FormFields.h"
#include "schema/SEColl.h"

namespace velra {

namespace {

bool differsFromNumber(const Value& stored, std::int16_t held) {
  // True is no number that a check box can hold.
  if (const auto truth = stored.truth()) return *truth || held != 0;
  if (stored.text()) return true;
  return toReal(stored) != held;
}

StringList stringsOf(const SetOfRows& rows) {
  StringList strings;
  strings.reserve(static_cast<std::size_t>(rows.Count()));
  for (std::int16_t row = 1; row <= rows.Count(); ++row) strings.push_back(rows.rowText(row));
  return strings;
}

}  // namespace

bool differs(const Value& stored, const Value& held) {
  if (const auto text = held.text()) {
    return isEmpty(stored) ? !text->empty() : stored.text() != text;
  }
  if (const auto number = held.whole()) {
    return differsFromNumber(stored, *number);
  }
  return stored != held;
}

void commitSet(SchemaElement& field, const StringList& strings) {
  if (toCollection(field.vContent()) != strings) field.setBChanged(true);
  // A field that an earlier edit has changed is made anew too.
  if (!field.bChanged()) return;
  if (!strings.empty()) return field.assign(strings);
  field.setVContent({});
  field.unassign();
}

void commitForm(const FormFields& form, SEColl& secol, CrossLanguageFields* crossLanguage,
                std::string_view titleField, const std::function<void()>& titleChanged) {
  for (const FieldBox& box : form.colControls()) {
    SchemaElement& field = secol.Item(box.Tag);
    if (field.bReadOnly() || !field.bValid()) continue;
    if (crossLanguage && crossLanguage->commitField(box, field)) continue;
    if (box.rows) {
      commitSet(field, stringsOf(*box.rows));
    } else if (differs(field.vContent(), box.value)) {
      field.setBChanged(true);
      field.setVContent(box.value);
      if (field.strName() == titleField) titleChanged();
    }
  }
}

}  // namespace velra
