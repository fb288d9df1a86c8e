// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace velra::test {

/// The first line in which two lists differ, from both; "" for equal ones. Lists of a document's
/// states are too long to be shown whole.
inline std::string firstDifference(const std::vector<std::string>& ours,
                                   const std::vector<std::string>& plain) {
  const auto [at, other] = std::mismatch(ours.begin(), ours.end(), plain.begin(), plain.end());
  if (at == ours.end() && other == plain.end()) return {};
  const std::string first = at == ours.end() ? "(end)" : *at;
  const std::string second = other == plain.end() ? "(end)" : *other;
  return "line " + std::to_string(at - ours.begin() + 1) + "\n  ours:  " + first +
         "\n  plain: " + second;
}

}  // namespace velra::test
