// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

/// True for what a document can hold: no control characters but tab and line ends, no halves of a
/// pair, and none of the two that are no characters.
constexpr bool isXmlCharacter(char32_t value) {
  if (value < 0x20) return value == 0x9 || value == 0xA || value == 0xD;
  return value <= 0xD7FF || (value >= 0xE000 && value <= 0xFFFD) ||
         (value >= 0x10000 && value <= 0x10FFFF);
}

}  // namespace velra
