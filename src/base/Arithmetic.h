// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velra {

/// The nearest whole number, ties to even.
double roundHalfEven(double value);

/// The nearest whole number, ties to even, in 16 or 32 bits; kOverflow when it does not fit.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// Exact results of 16-bit arithmetic; kOverflow when they do not fit.
std::int16_t addInt16(std::int16_t a, std::int16_t b);
std::int16_t multiplyInt16(std::int16_t a, std::int16_t b);

}  // namespace velra
