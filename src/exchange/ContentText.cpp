// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ContentText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/Arithmetic.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

constexpr int kSecondsPerHour = 3600;
constexpr double kMostRate = 1000;    // pictures per second
constexpr double kMostSeconds = 1e8;  // three years; nothing beyond it is a time

double bounded(double seconds) {
  return std::isnan(seconds) ? 0 : std::clamp(seconds, 0.0, kMostSeconds);
}

bool isBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

}  // namespace

std::int64_t milliseconds(double seconds) {
  return static_cast<std::int64_t>(roundHalfEven(bounded(seconds) * 1000));
}

std::string secondsText(double seconds) {
  char text[32];
  const std::int64_t whole = milliseconds(seconds);
  std::snprintf(text, sizeof text, "%lld.%03d", static_cast<long long>(whole / 1000),
                static_cast<int>(whole % 1000));
  return text;
}

std::string clockText(double seconds, char sign) {
  const std::int64_t whole = milliseconds(seconds);
  const auto rest = static_cast<int>(whole / 1000 % kSecondsPerHour);
  char text[48];
  std::snprintf(text, sizeof text, "%02lld:%02d:%02d%c%03d",
                static_cast<long long>(whole / 1000 / kSecondsPerHour), rest / 60, rest % 60, sign,
                static_cast<int>(whole % 1000));
  return text;
}

std::string timeCodeOf(double seconds, double rate) {
  // The label's fields are 16 bits wide, so whole hours are counted apart.
  const double time = bounded(seconds);
  const double hours = std::floor(time / kSecondsPerHour);
  const bool usual = rate > 0 && rate <= kMostRate;
  TimeCode code = SplitTimeCode(time - hours * kSecondsPerHour, usual ? rate : 0);
  code[0] = static_cast<std::int16_t>(code[0] + hours);
  return timeCodeText(code);
}

std::string oneLine(std::string_view text) {
  std::string line;
  bool gap = false;
  for (const char character : text) {
    if (isBlank(character)) {
      gap = !line.empty();
      continue;
    }
    if (gap) line += ' ';
    gap = false;
    line += character;
  }
  return line;
}

std::size_t characters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

std::string uriPath(const std::string& path) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string uri;
  for (const char character : path) {
    const unsigned byte = static_cast<unsigned char>(character);
    const bool plain = (byte | 32U) - 'a' < 26U || byte - '0' < 10U ||
                       std::string_view("-._~/").find(character) != std::string_view::npos;
    uri += plain ? std::string(1, character) : std::string{'%', kHex[byte >> 4U], kHex[byte & 15U]};
  }
  return uri;
}

}  // namespace velra
