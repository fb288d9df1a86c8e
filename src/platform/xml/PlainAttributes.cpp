// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/PlainLetters.h"
#include "platform/xml/PlainScanner.h"

namespace velra::xml {

namespace {

constexpr std::size_t kMostAttributes = 16;  // the library compares them all with one another

// What these declare the library judges.
bool isUsualSpace(std::string_view name, std::string_view value) {
  return !value.empty() && !name.starts_with("xmlns:xml") &&
         !value.starts_with("http://www.w3.org/XML/") && value.find("xmlns/") == value.npos;
}

}  // namespace

bool PlainScanner::readAttribute(std::uint32_t element) {
  std::string_view name;
  if (!readName(name) || !passed("=")) return false;
  const char quote = *at_;
  if (quote != '"' && quote != '\'') return false;
  const char* const start = ++at_;
  // Tabs and line ends turn into blanks.
  while (*at_ != quote) {
    if (*at_ == '\t' || *at_ == '\n' || !passLetter()) return false;
  }
  const std::string_view value(start, static_cast<std::size_t>(at_++ - start));
  if (!isUsualAttribute(element, name, value)) return false;
  add(name, PlainNode::Kind::Attribute);
  add(value, PlainNode::Kind::Attribute);
  nodes_[element].values += 2;
  return true;
}

bool PlainScanner::isUsualAttribute(std::uint32_t element, std::string_view name,
                                    std::string_view value) const {
  const bool declares = name == "xmlns" || name.starts_with("xmlns:");
  const bool prefixed = name.find(':') != name.npos;
  if (declares || prefixed || name.starts_with("xml")) {
    if (element != 0) return false;
    if (declares ? !isUsualSpace(name, value) : name.starts_with("xml")) return false;
  }
  const std::size_t count = nodes_[element].values;
  if (count == 2 * kMostAttributes) return false;
  for (std::size_t i = 0; i < count; i += 2) {
    const std::string_view other = nodes_[element + 1 + i].view();
    // Two prefixes may mean the same.
    const bool bothPrefixed =
        prefixed && !declares && other.find(':') != other.npos && !other.starts_with("xmlns:");
    if (other == name || bothPrefixed) return false;
  }
  return true;
}

}  // namespace velra::xml
