// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/SearchWords.h"

#include "base/Text.h"
#include "exchange/ContentText.h"

namespace velra {

std::vector<SearchWord> searchWords(const std::string& text) {
  std::vector<SearchWord> words;
  for (const std::string& part : split(oneLine(text), ' ')) {
    SearchWord word{part, part.ends_with('*')};
    if (word.begins) word.text.pop_back();
    if (!word.text.empty()) words.push_back(std::move(word));
  }
  return words;
}

}  // namespace velra
