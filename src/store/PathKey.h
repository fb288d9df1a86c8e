// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

namespace velra {

/// A number that stands for the normal form of a path in indexes, for as long as the program runs.
/// Two paths may have the same one, so that a hit must be asked.
using PathKey = std::uint64_t;

inline PathKey pathKey(std::string_view normalForm) {
  return std::hash<std::string_view>{}(normalForm);
}

/// A hash already.
struct PathKeyHash {
  std::size_t operator()(PathKey key) const { return key; }
};

}  // namespace velra
