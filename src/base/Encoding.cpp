// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Encoding.h"

#include <unicode/unistr.h>

#include "base/Text.h"

namespace velra {

namespace {

constexpr std::string_view kMarkOfUtf8 = "\xEF\xBB\xBF";

std::string converted(std::string_view bytes, const char* encoding) {
  std::string text;
  icu::UnicodeString(bytes.data(), static_cast<std::int32_t>(bytes.size()), encoding)
      .toUTF8String(text);
  return text;
}

}  // namespace

std::optional<std::string> decodedText(std::string_view bytes) {
  std::string text;
  if (bytes.starts_with("\xFF\xFE")) {
    text = converted(bytes.substr(2), "UTF-16LE");
  } else if (bytes.starts_with("\xFE\xFF")) {
    text = converted(bytes.substr(2), "UTF-16BE");
  } else if (isUtf8(bytes)) {
    text = bytes.substr(bytes.starts_with(kMarkOfUtf8) ? kMarkOfUtf8.size() : 0);
  } else {
    text = converted(bytes, "windows-1252");
  }
  if (text.find('\0') != std::string::npos) return std::nullopt;
  return text;
}

std::string withoutControls(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i, 3);
    if (rest == "\xEF\xBF\xBE" || rest == "\xEF\xBF\xBF") {
      i += 2;
      continue;
    }
    const char character = text[i];
    const bool control = character >= 0 && character < ' ' && character != '\t' &&
                         character != '\n' && character != '\r';
    if (!control) clean += character;
  }
  return clean;
}

}  // namespace velra
