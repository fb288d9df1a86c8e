// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velra {

/// A text of whatever origin as UTF-8: UTF-16 by its mark, UTF-8 with its mark or without, and what
/// is neither in the usual encoding of western Windows. Nothing for bytes that are no text.
std::optional<std::string> decodedText(std::string_view bytes);

/// The text without what no document can hold: control characters but tab and line ends, and two
/// that are no characters. The text is UTF-8.
std::string withoutControls(std::string_view text);

}  // namespace velra
