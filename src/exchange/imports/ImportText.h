// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velra {

/// The text of a file to import, as UTF-8 with plain line feeds, and without what no document can
/// hold. Raises ExchangeFailure for a file that cannot be read, is empty, has more than 64 MB or is
/// no text.
std::string importedText(const std::string& path);

/// The lines of such a text; the end of the last line makes no further one.
std::vector<std::string> linesOf(const std::string& text);

/// A time in whole milliseconds: seconds with point or comma ("83.5"), a clock with one to three
/// fields and a fraction ("1:23.500"), or four fields whose last one counts pictures
/// ("00:01:23:12", with ";" where numbers are dropped). Nothing for any other text, for a negative
/// time, and for pictures at a rate of 0.
std::optional<double> timeInText(std::string_view text, double rate);

}  // namespace velra
