// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/ContentPrint.h"

#include <cstddef>
#include <cstring>

namespace velra {

namespace {

// Eight bytes at a time, each stirred into all that came before.
std::uint64_t stirred(std::uint64_t print, std::uint64_t word) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
  print = (print ^ word) * kOdd;
  return print ^ (print >> 32);
}

}  // namespace

std::uint64_t contentPrint(std::string_view bytes) {
  std::uint64_t print = stirred(1, bytes.size());
  while (!bytes.empty()) {
    std::uint64_t word = 0;
    const std::size_t count = bytes.size() < sizeof word ? bytes.size() : sizeof word;
    std::memcpy(&word, bytes.data(), count);
    print = stirred(print, word);
    bytes.remove_prefix(count);
  }
  return print;
}

}  // namespace velra
