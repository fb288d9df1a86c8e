// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlWriter.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/RunTimeError.h"
#include "platform/xml/XmlChecks.h"
#include "platform/xml/XmlShell.h"

namespace velra {
namespace {

/// Tells in one step whether a character would not come back as it is.
class SpecialCharacters {
 public:
  explicit constexpr SpecialCharacters(std::string_view characters) {
    for (const char one : characters) special_[static_cast<unsigned char>(one)] = true;
  }

  constexpr bool has(char character) const {
    return special_[static_cast<unsigned char>(character)];
  }

 private:
  std::array<bool, 256> special_{};
};

constexpr std::size_t kUsualContent = 4096;  // bytes of an instance file and more

constexpr SpecialCharacters kInText("<>&\r");
constexpr SpecialCharacters kInAttribute("<>&\"\t\n\r");

std::string_view reference(char character) {
  switch (character) {
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '&':
      return "&amp;";
    case '"':
      return "&quot;";
    case '\t':
      return "&#9;";
    case '\n':
      return "&#10;";
    default:
      return "&#13;";
  }
}

/// Appends a text with references in place of the characters that would not come back.
void appendEscaped(std::string& target, std::string_view text, const SpecialCharacters& special) {
  for (;;) {
    const auto* at = std::find_if(text.begin(), text.end(), [&](char c) { return special.has(c); });
    target.append(text.begin(), at);
    if (at == text.end()) return;
    target += reference(*at);
    text.remove_prefix(static_cast<std::size_t>(at - text.begin()) + 1);
  }
}

void check(const std::string& name, std::string_view text, XmlAttributeViews attributes) {
  xml::checkName(name);
  xml::checkText(text, name);
  for (const auto& [attribute, value] : attributes) {
    xml::checkName(attribute);
    xml::checkText(value, attribute);
  }
}

void appendEnd(std::string& target, const std::string& name) {
  target += "</";
  target += name;
  target += '>';
}

void appendStart(std::string& target, const std::string& name, XmlAttributeViews attributes) {
  target += '<';
  target += name;
  for (const auto& [attribute, value] : attributes) {
    target += ' ';
    target += attribute;
    target += "=\"";
    appendEscaped(target, value, kInAttribute);
    target += '"';
  }
}

}  // namespace

XmlWriter::XmlWriter(const XmlShell& shell)
    : before_(shell.parts().before), behind_(shell.parts().behind) {
  content_.reserve(kUsualContent);
}

void XmlWriter::endElement(std::string& target) const {
  if (element_.empty()) return;
  if (isEmpty_) {
    target += "/>";
  } else {
    appendEnd(target, element_);
  }
}

void XmlWriter::addElement(const std::string& name, std::string_view text,
                           XmlAttributeViews attributes) {
  check(name, text, attributes);
  endElement(content_);
  appendStart(content_, name, attributes);
  element_ = name;
  isEmpty_ = text.empty();
  if (isEmpty_) return;
  content_ += '>';
  appendEscaped(content_, text, kInText);
}

void XmlWriter::addChild(const std::string& name, std::string_view text,
                         XmlAttributeViews attributes) {
  if (element_.empty()) raise(kNoObject);
  check(name, text, attributes);
  if (isEmpty_) content_ += '>';
  isEmpty_ = false;
  appendStart(content_, name, attributes);
  if (text.empty()) {
    content_ += "/>";
    return;
  }
  content_ += '>';
  appendEscaped(content_, text, kInText);
  appendEnd(content_, name);
}

std::string XmlWriter::bytes() const {
  std::string bytes;
  bytes.reserve(before_.size() + content_.size() + element_.size() + behind_.size() + 3);
  bytes += before_;
  if (element_.empty()) {
    bytes.back() = '/';  // an empty root is one tag
    bytes += behind_.substr(behind_.find('>'));
    return bytes;
  }
  bytes += content_;
  endElement(bytes);
  return bytes += behind_;
}

}  // namespace velra
