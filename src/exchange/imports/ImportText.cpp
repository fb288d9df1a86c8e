// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/ImportText.h"

#include <algorithm>

#include "base/Encoding.h"
#include "base/Text.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/FrameCount.h"
#include "platform/files/Files.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

constexpr std::uint64_t kLargestImport = 64'000'000;
constexpr double kLatestTime = 1e6;  // eleven days; nothing beyond it is a time in a movie

bool isNumeral(const std::string& text, bool fraction) {
  const std::size_t point = text.find('.');
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.empty() || (point != std::string::npos && !fraction)) return false;
  return std::all_of(text.begin(),
                     text.begin() + static_cast<std::ptrdiff_t>(std::min(point, text.size())),
                     isDigit) &&
         (point == std::string::npos ||
          (point + 1 < text.size() &&
           std::all_of(text.begin() + static_cast<std::ptrdiff_t>(point) + 1, text.end(),
                       isDigit)));
}

// The numbers between colons; nothing when one of them is none.
std::vector<double> clockFields(const std::string& text) {
  std::vector<double> numbers;
  const std::vector<std::string> fields = split(text, ':');
  for (const std::string& field : fields) {
    const bool last = numbers.size() + 1 == fields.size() && fields.size() < 4;
    const auto number = isNumeral(field, last) ? toNumber(field) : std::nullopt;
    if (!number) return {};
    numbers.push_back(*number);
  }
  return numbers;
}

}  // namespace

std::string importedText(const std::string& path) {
  const FileBytes file = readFile(path, kLargestImport);
  if (!file.reason.empty()) throw ExchangeFailure(path + ": " + file.reason);
  const auto text = decodedText(file.bytes);
  if (!text) throw ExchangeFailure(path + " is no text.");
  return withoutControls(replaceAll(replaceAll(*text, "\r\n", "\n"), "\r", "\n"));
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines = split(text, '\n');
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

std::optional<double> timeInText(std::string_view text, double rate) {
  std::string clock(trimmed(text));
  const bool dropped = clock.find(';') != std::string::npos;
  clock = replaceAll(replaceAll(clock, ",", "."), ";", ":");
  const std::vector<double> fields = clockFields(clock);
  if (fields.empty() || fields.size() > 4) return std::nullopt;
  double seconds = 0;
  for (std::size_t i = 0; i < std::min<std::size_t>(fields.size(), 3); ++i) {
    seconds = seconds * 60 + fields[i];
  }
  if (fields.size() == 4) {
    if (rate <= 0 || fields[3] >= rate + 1) return std::nullopt;
    if (dropped) {
      const FrameCount frames(rate);
      const auto frame = frames.labelled(clock, true);
      return frame ? std::optional(inWholeMilliseconds(frames.seconds(*frame))) : std::nullopt;
    }
    seconds += fields[3] / rate;
  }
  if (seconds > kLatestTime) return std::nullopt;
  return inWholeMilliseconds(seconds);
}

}  // namespace velra
