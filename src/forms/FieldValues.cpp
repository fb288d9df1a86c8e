// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FieldValues.h"

#include "base/RunTimeError.h"
#include "base/Text.h"

namespace velra {

Date toDate(const Value& value) {
  if (const auto date = value.day()) return *date;
  if (const auto text = value.text()) {
    if (const auto date = Date::fromUserText(std::string(*text))) return *date;
  }
  raise(kTypeMismatch);
}

bool toBoolean(const Value& value) {
  if (const auto truth = value.truth()) return *truth;
  if (const auto text = value.text()) {
    if (equalIgnoringAsciiCase(*text, "true")) return true;
    if (equalIgnoringAsciiCase(*text, "false")) return false;
  }
  return toReal(value) != 0;
}

const StringList& toCollection(const Value& value) {
  const StringList* list = asList(value);
  if (!list) raise(kNoObject);
  return *list;
}

}  // namespace velra
