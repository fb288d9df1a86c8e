// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ctlSetOfStringCL.h"

#include "forms/VocabularyNames.h"

namespace velra {

void ctlSetOfStringCL::AssignItems(const Vocabulary& vocabulary, std::int32_t language) {
  removeAllRows();
  colItems_ = &vocabulary;
  items_ = localNames(vocabulary, language);
}

std::string ctlSetOfStringCL::Strng(std::int16_t row, std::int32_t language) const {
  const std::string& shown = rowText(row);
  return colItems_ ? englishName(*colItems_, shown, language) : std::string();
}

void ctlSetOfStringCL::setStrng(std::int16_t row, std::int32_t language,
                                const std::string& english) {
  showInRow(row, colItems_ ? localName(*colItems_, english, language) : std::string());
}

}  // namespace velra
