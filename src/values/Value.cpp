// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/Value.h"

#include "base/RunTimeError.h"
#include "base/Text.h"

namespace velra {

bool isEmpty(const Value& value) {
  return std::holds_alternative<std::monostate>(value);
}

std::string toText(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (isEmpty(value)) return {};
  if (const auto* whole = std::get_if<std::int16_t>(&value)) return std::to_string(*whole);
  if (const auto* real = std::get_if<double>(&value)) return numberText(*real);
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "True" : "False";
  if (const auto* date = std::get_if<Date>(&value)) return date->isoText();
  raise(kTypeMismatch);
}

double toReal(const Value& value) {
  if (isEmpty(value)) return 0;
  if (const auto* whole = std::get_if<std::int16_t>(&value)) return *whole;
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (const auto number = toNumber(*text)) return *number;
  }
  raise(kTypeMismatch);
}

const StringList* asList(const Value& value) {
  return std::get_if<StringList>(&value);
}

StringList* asList(Value& value) {
  return std::get_if<StringList>(&value);
}

std::shared_ptr<Chunk> asChunk(const Value& value) {
  const auto* chunk = std::get_if<std::shared_ptr<Chunk>>(&value);
  return chunk ? *chunk : nullptr;
}

std::shared_ptr<WordColl> asWords(const Value& value) {
  const auto* words = std::get_if<std::shared_ptr<WordColl>>(&value);
  return words ? *words : nullptr;
}

}  // namespace velra
