// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/CaselessText.h"

#include <cstring>

#include "base/Text.h"

namespace velra {

namespace {

constexpr unsigned char kFirstBeyondAscii = 0x80;

// Of all characters beyond ASCII two have lower cases within it: the sign of the kelvin gives a k,
// the capital I with a dot an i.
bool hasOneCapital(char lower) {
  return static_cast<unsigned char>(lower) < kFirstBeyondAscii && lower != 'k' && lower != 'i';
}

std::string longestPlainRun(std::string_view lowerText) {
  std::string_view longest;
  for (std::size_t at = 0; at < lowerText.size(); ++at) {
    std::size_t end = at;
    while (end < lowerText.size() && hasOneCapital(lowerText[end])) ++end;
    if (end - at > longest.size()) longest = lowerText.substr(at, end - at);
    at = end;
  }
  return std::string(longest);
}

// A to Z lowered, in one place for all values of a thread: a new copy of each would take longer
// than the search. Without a branch or a table, so that many bytes are lowered at once. False when
// the value is not plain ASCII.
bool lowerInto(std::string& lowered, std::string_view value) {
  constexpr unsigned char kLetters = 26;
  constexpr unsigned char kStep = 'a' - 'A';
  unsigned char all = 0;
  lowered.resize(value.size());
  char* to = lowered.data();
  for (const char c : value) {
    const auto byte = static_cast<unsigned char>(c);
    const bool capital = static_cast<unsigned char>(byte - 'A') < kLetters;
    all |= byte;
    *to++ = static_cast<char>(byte + (capital ? kStep : 0));
  }
  return all < kFirstBeyondAscii;
}

// Unlike `find` it does not stop at each first letter of the part.
bool holds(const std::string& text, const std::string& part) {
  return ::memmem(text.data(), text.size(), part.data(), part.size()) != nullptr;
}

}  // namespace

CaselessText::CaselessText(std::string_view text)
    : text_(toLower(text)), run_(longestPlainRun(text_)) {}

bool CaselessText::bIn(std::string_view value) const {
  thread_local std::string lowered;
  const bool plain = lowerInto(lowered, value);
  // What is in lower case stays when all is lowered.
  if (holds(lowered, text_)) return true;
  return !plain && holds(lowered, run_) && holds(toLower(value), text_);
}

}  // namespace velra
