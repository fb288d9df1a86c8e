// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velra {

// The options of a command line. All raise ExchangeFailure with a sentence for the person.

/// Goes through words: `isKnown` says of each option whether it is one, `switchOf` where one that
/// stands alone is kept (null for the others), and `set` takes the value behind the others.
/// `format` is who takes them, in sentences.
struct OptionTaker {
  std::string format;
  std::function<bool(const std::string&)> isKnown;
  std::function<bool*(const std::string&)> switchOf;
  std::function<void(const std::string& option, const std::string& value)> set;

  void take(const std::vector<std::string>& words) const;
};

/// True for "--name" of names in a row with blanks between them.
bool isOptionOf(std::string_view names, const std::string& option);

/// A whole number from 1 on.
int numberOption(const std::string& option, const std::string& value);

/// A number from 0 up to `most`.
double valueOption(const std::string& option, const std::string& value, double most);

/// Pictures per second.
double rateOption(const std::string& value);

}  // namespace velra
