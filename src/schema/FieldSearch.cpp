// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/FieldSearch.h"

#include "base/Text.h"
#include "schema/SchemaElement.h"

namespace velra {

FieldSearch::FieldSearch(const std::string& text, bool matchCase)
    : text_(matchCase ? text : toLower(text)), matchCase_(matchCase) {}

bool FieldSearch::bTextMatches(std::string_view value) const {
  // An empty text is found in every value that is not empty itself.
  if (value.empty()) return false;
  if (matchCase_) return value.find(text_) != std::string_view::npos;
  return toLower(value).find(text_) != std::string::npos;
}

long FieldSearch::hitsIn(const SchemaElement& field) const {
  long hits = 0;
  if (field.tyType() == tyType::String) {
    const auto text = field.vContent().text();
    const bool hit = text ? bTextMatches(*text) : bTextMatches(toText(field.vContent()));
    hits += hit ? 1 : 0;
  } else if (field.tyType() == tyType::SetOfStrings) {
    if (const StringList* list = asList(field.vContent())) {
      for (const std::string& item : *list) hits += bTextMatches(item) ? 1 : 0;
    }
  } else if (field.tyType() == tyType::WordList) {
    if (const auto words = asWords(field.vContent())) {
      for (const WordItem& word : *words) hits += bTextMatches(word.strTxt) ? 1 : 0;
    }
  }
  return hits;
}

}  // namespace velra
