// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/OptionWords.h"

#include <algorithm>

#include "base/Text.h"
#include "exchange/ExchangeFailure.h"

namespace velra {

namespace {

constexpr int kMostOptionNumber = 1'000'000;

}  // namespace

void OptionTaker::take(const std::vector<std::string>& words) const {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (!isKnown(word)) throw ExchangeFailure(format + " takes no \"" + word + "\".");
    if (bool* const on = switchOf(word)) {
      *on = true;
      continue;
    }
    if (++i == words.size() || words[i].empty()) {
      throw ExchangeFailure(word + " needs a value behind it.");
    }
    set(word, words[i]);
  }
}

bool isOptionOf(std::string_view names, const std::string& option) {
  const auto all = split(names, ' ');
  return option.starts_with("--") && option.size() > 2 &&
         std::find(all.begin(), all.end(), option.substr(2)) != all.end();
}

int numberOption(const std::string& option, const std::string& value) {
  const auto number = toNumber(value);
  const bool whole = number && *number >= 1 && *number <= kMostOptionNumber &&
                     *number == static_cast<int>(*number);
  if (!whole) throw ExchangeFailure(option + " takes a number from 1, not \"" + value + "\".");
  return static_cast<int>(*number);
}

double valueOption(const std::string& option, const std::string& value, double most) {
  const auto number = toNumber(value);
  if (number && *number >= 0 && *number <= most) return *number;
  throw ExchangeFailure(option + " takes a number from 0 to " + numberText(most) + ", not \"" +
                        value + "\".");
}

double rateOption(const std::string& value) {
  constexpr double kMostPictures = 1000;
  const auto rate = toNumber(value);
  if (!rate || *rate < 1 || *rate > kMostPictures) {
    throw ExchangeFailure("--rate takes pictures per second from 1 to 1000, not \"" + value +
                          "\".");
  }
  return *rate;
}

}  // namespace velra
