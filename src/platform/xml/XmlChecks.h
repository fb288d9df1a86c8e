// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

/// What a document can hold. For the files of this folder alone.
namespace velra::xml {

/// kInvalidArgument for a text that XML cannot hold: it would make a file that nobody can open
/// again. The message names its owner, an element or an attribute.
void checkText(std::string_view text, std::string_view owner);

/// kInvalidArgument for what is no name of an element or attribute.
void checkName(std::string_view name);

}  // namespace velra::xml
