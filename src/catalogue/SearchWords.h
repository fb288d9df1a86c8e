// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {

/// One word of a search.
struct SearchWord {
  std::string text;
  bool begins = false;  // stands for all words that begin like it
};

/// The words between blanks; a "*" at the end of one is taken off. None for a text without words.
std::vector<SearchWord> searchWords(const std::string& text);

}  // namespace velra
