// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/FieldTexts.h"

#include <algorithm>

#include "base/Text.h"
#include "protocol/ClassRules.h"
#include "schema/SEColl.h"

namespace velra {

namespace {

bool tiesObjects(const SchemaElement& field, const ClassRules& rules) {
  const auto& single = rules.singleReferences;
  const std::string& lower = field.strLowerName();
  return field.strName() == rules.identityField || lower == kVersionGuidField ||
         lower == rules.partOfField || lower == rules.followedByField ||
         lower == "hasaudiotranscript" ||
         std::find(single.begin(), single.end(), lower) != single.end();
}

std::optional<Value> truthIn(const std::string& text) {
  const std::string word = asciiLower(trimmed(text));
  const bool yes = word == "true" || word == "1" || word == "yes";
  if (yes || word == "false" || word == "0" || word == "no") return yes;
  return std::nullopt;
}

std::optional<Value> numberIn(const std::string& text, bool whole) {
  const auto number = toNumber(text);
  if (!number || (whole && *number != static_cast<double>(static_cast<std::int64_t>(*number)))) {
    return std::nullopt;
  }
  return std::string(trimmed(text));
}

std::optional<Value> choiceIn(const SEColl& fields, const SchemaElement& field,
                              const std::string& text) {
  const CloseList* list = fields.closeLists().find(field.strCloseList());
  const bool allowed = !list || std::find(list->colItems.begin(), list->colItems.end(), text) !=
                                    list->colItems.end();
  return allowed ? std::optional<Value>(text) : std::nullopt;
}

}  // namespace

SchemaElement* writableField(SEColl& fields, const ClassRules& rules, const std::string& name) {
  SchemaElement* field = fields.field(name);
  const bool fits = field && field->bIsHumanReadable() && !field->bReadOnly() &&
                    !field->bIgnore() && name != rules.titleField && !tiesObjects(*field, rules);
  return fits ? field : nullptr;
}

std::optional<Value> valueOfText(const SEColl& fields, const SchemaElement& field,
                                 const std::string& text) {
  switch (field.tyType()) {
    case tyType::String:
      return text;
    case tyType::Integer:
    case tyType::Real:
      return numberIn(text, field.tyType() == tyType::Integer);
    case tyType::Bool:
      return truthIn(text);
    case tyType::CloseList:
      return choiceIn(fields, field, text);
    case tyType::SetOfStrings:
      return split(text, '\n');
    case tyType::Date:
      if (const auto date = Date::fromIsoText(text)) return *date;
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace velra
