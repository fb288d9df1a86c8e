// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/CaselessText.h"

namespace velra {

class SchemaElement;

/// Finds one text in many fields; the text is lowered once.
class FieldSearch {
 public:
  FieldSearch(const std::string& text, bool matchCase);

  /// How many values of a field hold the text: its own, those of the members of a set, or the words
  /// of a list. The others hold none.
  long hitsIn(const SchemaElement& field) const;

 private:
  bool bTextMatches(std::string_view value) const;

  std::string text_;
  CaselessText caseless_;
  bool matchCase_;
};

}  // namespace velra
