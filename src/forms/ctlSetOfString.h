// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/SetOfRows.h"

namespace velra {

/// A set of strings as rows of free text.
class ctlSetOfString : public SetOfRows {
 public:
  const std::string& Strng(std::int16_t row) const { return rowText(row); }
  void setStrng(std::int16_t row, const std::string& text) { showInRow(row, text); }
};

}  // namespace velra
