// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>
#include <variant>

#include "base/Arithmetic.h"
#include "base/Text.h"
#include "schema/SEColl.h"

namespace velra {

namespace {

// Finds one text in many values; the text is lowered once.
class TextMatcher {
 public:
  TextMatcher(const std::string& text, bool matchCase)
      : text_(matchCase ? text : toLower(text)), matchCase_(matchCase) {}

  bool operator()(const std::string& value) const {
    // An empty text is found in every value that is not empty itself.
    if (value.empty()) return false;
    if (matchCase_) return value.find(text_) != std::string::npos;
    return toLower(value).find(text_) != std::string::npos;
  }

 private:
  std::string text_;
  bool matchCase_;
};

long hitsIn(const SchemaElement& element, const TextMatcher& matches) {
  long hits = 0;
  if (element.tyType() == tyType::String) {
    const auto* text = std::get_if<std::string>(&element.vContent());
    const bool hit = text ? matches(*text) : matches(toText(element.vContent()));
    hits += hit ? 1 : 0;
  } else if (element.tyType() == tyType::SetOfStrings) {
    if (const StringList* list = asList(element.vContent())) {
      for (const std::string& item : *list) hits += matches(item) ? 1 : 0;
    }
  } else if (element.tyType() == tyType::WordList) {
    if (const auto words = asWords(element.vContent())) {
      for (const WordItem& word : *words) hits += matches(word.strTxt) ? 1 : 0;
    }
  }
  return hits;
}

}  // namespace

std::int16_t SEColl::iSearchText(const std::string& strText, bool bMatchCase) const {
  const TextMatcher matches(strText, bMatchCase);
  long hits = 0;
  for (const SchemaElement& element : elements_) {
    if (element.bValid()) hits += hitsIn(element, matches);
  }
  return toInt16(static_cast<double>(hits));
}

}  // namespace velra
