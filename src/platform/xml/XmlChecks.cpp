// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlChecks.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string_view>

#include "base/RunTimeError.h"
#include "platform/xml/XmlCharacter.h"
#include "platform/xml/XmlLibrary.h"

namespace velra::xml {
namespace {

/// The length of the UTF-8 sequence at the front and its code point; nothing when it is malformed.
struct CodePoint {
  std::size_t length;
  std::uint32_t value;
};
std::optional<CodePoint> firstCodePoint(std::string_view text) {
  int length = static_cast<int>(text.size());
  const int value = xmlGetUTF8Char(reinterpret_cast<const xmlChar*>(text.data()), &length);
  if (value < 0) return std::nullopt;
  return CodePoint{static_cast<std::size_t>(length), static_cast<std::uint32_t>(value)};
}

/// Most names are; the library's own check decodes each character.
bool isPlainName(std::string_view name) {
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  const auto isPlain = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9'); };
  return !name.empty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), isPlain);
}

std::string characterName(std::uint32_t value, const char* format) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, format, value);
  return buffer;
}

}  // namespace

void checkText(std::string_view text, std::string_view owner) {
  // Most texts are plain ASCII from end to end.
  const auto isPlain = [](char c) { return static_cast<signed char>(c) >= 0x20; };
  for (;;) {
    const auto* odd = std::find_if_not(text.begin(), text.end(), isPlain);
    if (odd == text.end()) return;
    text.remove_prefix(static_cast<std::size_t>(odd - text.begin()));
    const auto byte = static_cast<unsigned char>(text.front());
    const auto point = byte < 0x80 ? CodePoint{1, byte} : firstCodePoint(text);
    if (!point) {
      raise(kInvalidArgument,
            std::string(owner) + ": the byte " + characterName(byte, "%02X") + " is no text");
    }
    if (!isXmlCharacter(point->value)) {
      raise(kInvalidArgument, std::string(owner) + ": a file cannot hold the character " +
                                  characterName(point->value, "U+%04X"));
    }
    text.remove_prefix(point->length);
  }
}

void checkName(std::string_view text) {
  if (isPlainName(text)) return;
  const std::string name(text);
  const bool whole = name.find('\0') == std::string::npos;
  if (!whole || xmlValidateName(bytesOf(name), 0) != 0) {
    raise(kInvalidArgument, "\"" + name + "\" is no name of an element or attribute");
  }
}

}  // namespace velra::xml
