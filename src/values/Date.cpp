// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/Date.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "base/Arithmetic.h"
#include "base/Text.h"

namespace velra {

namespace {

std::optional<int> wholeNumber(const std::string& text) {
  const std::optional<double> value = toNumber(text);
  if (!value || roundHalfEven(*value) < INT16_MIN || roundHalfEven(*value) > INT16_MAX) {
    return std::nullopt;
  }
  return static_cast<int>(roundHalfEven(*value));
}

std::optional<Date> fromParts(const std::string& year, const std::string& month,
                              const std::string& day) {
  const auto y = wholeNumber(year);
  const auto m = wholeNumber(month);
  const auto d = wholeNumber(day);
  if (!y || !m || !d) return std::nullopt;
  return Date::fromSerial(*y, *m, *d);
}

}  // namespace

std::optional<Date> Date::fromSerial(int year, int month, int day) {
  using namespace std::chrono;
  const auto first = std::chrono::year{year} / January / 1 + months{month - 1};
  const year_month_day date{sys_days{first} + days{day - 1}};
  const int resultYear = static_cast<int>(date.year());
  if (resultYear < 0 || resultYear > 9999) return std::nullopt;
  return Date{resultYear, static_cast<int>(static_cast<unsigned>(date.month())),
              static_cast<int>(static_cast<unsigned>(date.day()))};
}

std::optional<Date> Date::fromIsoText(const std::string& text) {
  const std::vector<std::string> parts = split(text, '-');
  if (parts.size() < 3) return std::nullopt;
  return fromParts(parts[0], parts[1], parts[2]);
}

std::optional<Date> Date::fromUserText(const std::string& text) {
  const std::vector<std::string> parts = split(text, '/');
  if (parts.size() != 3) return std::nullopt;
  return fromParts(parts[2], parts[0], parts[1]);
}

std::string Date::isoText() const {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", year, month, day);
  return buffer;
}

}  // namespace velra
