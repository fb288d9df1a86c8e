// SPDX-License-Identifier: GPL-3.0-or-later

// The texts of dates, numbers and time codes, and of lines in a settings file: what is read and
// written again reads as the same.

#include <cmath>

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "fuzz/FuzzSession.h"
#include "platform/settings/SettingsFile.h"
#include "values/Date.h"
#include "values/TimeCode.h"

namespace velra::fuzz {
namespace {

void readTimeCode(double seconds) {
  try {
    for (const double rate : {0.0, 24.0, 25.0, 30000.0 / 1001}) {
      const TimeCode parts = SplitTimeCode(seconds, rate);
      require(!timeCodeText(parts).empty());
      require(std::abs(JoinTimeCode(parts, rate) - seconds) < (rate == 0 ? 1 : 0.05));
    }
  } catch (const RunTimeError&) {
    // Ten hours and more have no time code.
  }
}

void read(const std::string& text) {
  if (const auto number = toNumber(text)) {
    require(toNumber(numberText(*number)) == number || std::isnan(*number));
    readTimeCode(*number);
  }
  if (const auto date = Date::fromIsoText(text)) {
    require(Date::fromIsoText(date->isoText()) == date);
  }
  Date::fromUserText(text);
  require(unescapedLine(escapedLine(text)) == text);
  require(trimmed(toLower(text)).size() <= 3 * text.size());
}

}  // namespace
}  // namespace velra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velra::fuzz::read(std::string(velra::fuzz::textOf(data, size)));
  return 0;
}
