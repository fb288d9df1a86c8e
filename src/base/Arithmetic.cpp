// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Arithmetic.h"

#include <cmath>
#include <limits>

#include "base/RunTimeError.h"

namespace velra {

namespace {

template <class Integer>
Integer rounded(double value) {
  const double whole = roundHalfEven(value);
  const bool fits = whole >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                    whole <= static_cast<double>(std::numeric_limits<Integer>::max());
  if (!fits) raise(kOverflow);
  return static_cast<Integer>(whole);
}

std::int16_t checked(int value) {
  if (value < INT16_MIN || value > INT16_MAX) raise(kOverflow);
  return static_cast<std::int16_t>(value);
}

}  // namespace

double roundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t toInt16(double value) {
  return rounded<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
  return rounded<std::int32_t>(value);
}

std::int16_t addInt16(std::int16_t a, std::int16_t b) {
  return checked(int{a} + int{b});
}

std::int16_t multiplyInt16(std::int16_t a, std::int16_t b) {
  return checked(int{a} * int{b});
}

}  // namespace velra
