// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Texts are UTF-8. What people write is lowered and compared through ICU, names of fields and
/// files' extensions are plain ASCII.
namespace velra {

/// Lower case by the rules of Unicode, the same in every language of the user.
std::string toLower(std::string_view text);

/// Lower case of the letters A to Z alone; all other bytes stay.
std::string asciiLower(std::string_view text);

/// Equal but for the case of the letters A to Z.
bool equalIgnoringAsciiCase(std::string_view a, std::string_view b);

/// The pieces between separators, empty ones included; an empty text gives one empty piece.
std::vector<std::string> split(std::string_view text, char separator);

/// Without blanks, tabs and line ends at both ends.
std::string_view trimmed(std::string_view text);

std::string replaceAll(std::string text, std::string_view from, std::string_view to);

/// The whole text as a decimal number, blanks around it allowed; nothing for anything else. The
/// decimal point is ".", in every language of the user.
std::optional<double> toNumber(std::string_view text);

/// A whole number without its fraction when it has none, else the shortest form that reads back as
/// the same number.
std::string numberText(double value);

/// True when the bytes are well-formed UTF-8.
bool isUtf8(std::string_view text);

}  // namespace velra
