// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <cstdint>

namespace velra {

/// A colour of the rules, 0x00bbggrr.
inline QColor colourOf(std::int32_t colour) {
  return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

}  // namespace velra
