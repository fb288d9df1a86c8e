// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace velra {

/// A text that is looked for in many others, without regard to upper and lower case.
class CaselessText {
 public:
  explicit CaselessText(std::string_view text);

  /// True when `toLower` of the value holds `toLower` of the text.
  bool bIn(std::string_view value) const;

 private:
  std::string text_;  // in lower case
  std::string run_;   // a part of it that stands so, but for A to Z, in each value that holds it
};

}  // namespace velra
