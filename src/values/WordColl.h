// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>

#include "base/Collection.h"
#include "values/RareText.h"

namespace velra {

/// A word and the time in which it is spoken, in seconds from the start of the movie.
struct WordItem {
  RareText strStart;  // a text form of the times; nothing fills it
  RareText strEnd;
  double dStart = 0;
  double dend = 0;
  std::string strTxt;
};

/// The words of a transcript, in the order of the file.
class WordColl : public Collection<WordItem> {
 public:
  using Collection<WordItem>::Add;

  WordItem& Add(const std::string& strStart, const std::string& strEnd, double dStart, double dend,
                const std::string& strTxt, const std::string& sKey = {}) {
    Add(WordItem{strStart, strEnd, dStart, dend, strTxt}, sKey);
    return Item(Count());
  }
};

}  // namespace velra
