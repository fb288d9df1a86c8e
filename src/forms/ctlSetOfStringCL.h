// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "forms/SetOfRows.h"

namespace velra {

class ThematicKeyword;

/// A set of strings as rows of drop-down lists over a vocabulary: shown in a language, read back in
/// English. A language is a number of `iLanguage`.
class ctlSetOfStringCL : public SetOfRows {
 public:
  using Vocabulary = std::vector<std::shared_ptr<ThematicKeyword>>;

  /// Removes all rows and offers another vocabulary, which must outlive the control.
  void AssignItems(const Vocabulary& vocabulary, std::int32_t language);

  /// English of what the row shows; "" when the vocabulary does not hold it.
  std::string Strng(std::int16_t row, std::int32_t language) const;

  /// Shows an English word in the language; an empty row when the vocabulary does not hold it.
  void setStrng(std::int16_t row, std::int32_t language, const std::string& english);

  std::vector<std::string> choices() const override { return items_; }

 private:
  std::string newRowText() const override {
    return items_.empty() ? std::string() : items_.front();
  }

  const Vocabulary* colItems_ = nullptr;
  std::vector<std::string> items_;  // colItems_ in the language of AssignItems
};

}  // namespace velra
