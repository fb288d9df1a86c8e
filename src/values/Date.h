// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <optional>
#include <string>

namespace velra {

/// A day of the calendar, years 0 to 9999.
struct Date {
  int year = 2001;
  int month = 1;
  int day = 1;

  auto operator<=>(const Date&) const = default;

  /// Takes months and days that overflow, as serial dates do: month 13 is January of the next year,
  /// day 0 the last of the month before. Nothing when the result leaves the calendar.
  static std::optional<Date> fromSerial(int year, int month, int day);

  /// From the first three parts of a text separated by "-", each a 16-bit whole number.
  static std::optional<Date> fromIsoText(const std::string& text);

  /// From month, day and year separated by "/", the form of a new field's default; nothing for any
  /// other text.
  static std::optional<Date> fromUserText(const std::string& text);

  /// yyyy-mm-dd.
  std::string isoText() const;
};

}  // namespace velra
