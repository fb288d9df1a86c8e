// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace velra {

enum class InterfaceLanguage;

/// What the terminal is told in place of a start, line ends included: for the words "--help" and
/// "--version" where they are all of the command line. Nothing for any other, which is a path.
std::optional<std::string> terminalAnswer(int count, const char* const* arguments,
                                          InterfaceLanguage language, const std::string& version);

}  // namespace velra
