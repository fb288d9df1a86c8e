// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// What a byte of a plain file may be. For the files of this folder alone.
namespace velra::xml {

/// Marks: of a text, but for those that mean something in it; first in a name; in a name.
enum : unsigned { kPlainText = 1, kNameStart = 2, kInName = 4 };

inline constexpr std::array<std::uint8_t, 256> kLetters = [] {
  std::array<std::uint8_t, 256> letters{};
  for (std::size_t c = 0x20; c < 0x80; ++c) letters[c] = kPlainText;
  letters['\t'] = letters['\n'] = kPlainText;
  letters[std::size_t{'<'}] = letters[std::size_t{'&'}] = letters[std::size_t{']'}] = 0;
  const auto mark = [&](std::uint8_t first, std::uint8_t last, unsigned marks) {
    for (std::size_t c = first; c <= last; ++c) {
      letters[c] = static_cast<std::uint8_t>(letters[c] | marks);
    }
  };
  mark('A', 'Z', kNameStart | kInName);
  mark('a', 'z', kNameStart | kInName);
  mark('_', '_', kNameStart | kInName);
  mark('0', '9', kInName);
  mark('-', '.', kInName);
  return letters;
}();

inline bool is(char letter, unsigned marks) {
  return (kLetters[static_cast<unsigned char>(letter)] & marks) != 0;
}

inline bool isBlank(char letter) {
  return letter == ' ' || letter == '\n' || letter == '\t';
}

}  // namespace velra::xml
