// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velra {

/// A time in whole milliseconds, as files of documents keep it; none is below 0.
std::int64_t milliseconds(double seconds);

/// Seconds with three decimals.
std::string secondsText(double seconds);

/// "01:02:03.004", with the given sign before the milliseconds. Hours have two digits or more.
std::string clockText(double seconds, char sign = '.');

/// A time as the expression tool labels it; 0 for a rate that is not known. Hours go on beyond ten.
std::string timeCodeOf(double seconds, double rate);

/// Every run of blanks, tabs and line ends as one blank, none at the ends.
std::string oneLine(std::string_view text);

/// How many characters a text in UTF-8 has.
std::size_t characters(std::string_view text);

/// A path as it stands in an address of the web.
std::string uriPath(const std::string& path);

}  // namespace velra
