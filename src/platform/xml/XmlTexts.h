// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace velra {

/// An XML file as bytes, and why there are none.
struct RewrittenXml {
  std::string bytes;
  std::string reason;  // empty on success
};

/// Makes the new text of an element from its name, without a prefix, and its text.
using ReplaceText = std::function<std::string(std::string_view name, const std::string& text)>;

/// The bytes of a file in which the text of each element that holds no other element has become
/// what `replace` makes of it; all else stands as it stood. A file that cannot be parsed gives a
/// reason.
RewrittenXml withTextsReplaced(std::string_view bytes, const std::string& path,
                               const ReplaceText& replace);

}  // namespace velra
