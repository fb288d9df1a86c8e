// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/Text.h"

namespace velra::test {

/// True when these boxes were shown, in kind, order and text. In an expected one "~" stands for the
/// folder, and "..." at the end for a reason that the machine has to tell.
inline bool sameBoxes(const std::vector<std::string>& shown, std::vector<std::string> expected,
                      const std::string& folder) {
  const auto same = [&](const std::string& box, const std::string& pattern) {
    const std::string text = replaceAll(pattern, "~", folder);
    if (!text.ends_with("...")) return box == text;
    const std::string start = text.substr(0, text.size() - 3);
    return box.starts_with(start) && box.size() > start.size();
  };
  return std::equal(shown.begin(), shown.end(), expected.begin(), expected.end(), same);
}

}  // namespace velra::test
