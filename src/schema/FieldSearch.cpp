// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/FieldSearch.h"

#include "schema/SchemaElement.h"

namespace velra {

FieldSearch::FieldSearch(const std::string& text, bool matchCase)
    : text_(text), caseless_(text), matchCase_(matchCase) {}

bool FieldSearch::bTextMatches(std::string_view value) const {
  // An empty text is found in every value that is not empty itself.
  if (value.empty()) return false;
  return matchCase_ ? value.find(text_) != std::string_view::npos : caseless_.bIn(value);
}

// What a field holds is at hand; its type, which stands elsewhere, is asked for a hit alone.
long FieldSearch::hitsIn(const SchemaElement& field) const {
  const Value& content = field.vContent();
  if (const auto text = content.text()) {
    return bTextMatches(*text) && field.tyType() == tyType::String ? 1 : 0;
  }
  long hits = 0;
  if (field.tyType() == tyType::String) {
    hits += bTextMatches(toText(content)) ? 1 : 0;
  } else if (field.tyType() == tyType::SetOfStrings) {
    if (const StringList* list = asList(content)) {
      for (const std::string& item : *list) hits += bTextMatches(item) ? 1 : 0;
    }
  } else if (field.tyType() == tyType::WordList) {
    if (const auto words = asWords(content)) {
      for (const WordItem& word : *words) hits += bTextMatches(word.strTxt) ? 1 : 0;
    }
  }
  return hits;
}

}  // namespace velra
