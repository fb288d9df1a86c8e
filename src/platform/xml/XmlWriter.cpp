// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlWriter.h"

#include <string_view>

#include "base/RunTimeError.h"
#include "platform/xml/XmlChecks.h"
#include "platform/xml/XmlShell.h"

namespace velra {
namespace {

constexpr std::string_view kInText = "<>&\r";
constexpr std::string_view kInAttribute = "<>&\"\t\n\r";

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
void appendEscaped(std::string& target, std::string_view text, std::string_view special) {
  for (;;) {
    const std::size_t at = text.find_first_of(special);
    target += text.substr(0, at);
    if (at == std::string_view::npos) return;
    target += reference(text[at]);
    text.remove_prefix(at + 1);
  }
}

void check(const std::string& name, const std::string& text, const XmlAttributes& attributes) {
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

void appendStart(std::string& target, const std::string& name, const XmlAttributes& attributes) {
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
    : before_(shell.parts().before), behind_(shell.parts().behind) {}

void XmlWriter::endElement(std::string& target) const {
  if (element_.empty()) return;
  if (isEmpty_) {
    target += "/>";
  } else {
    appendEnd(target, element_);
  }
}

void XmlWriter::addElement(const std::string& name, const std::string& text,
                           const XmlAttributes& attributes) {
  check(name, text, attributes);
  endElement(content_);
  appendStart(content_, name, attributes);
  element_ = name;
  isEmpty_ = text.empty();
  if (isEmpty_) return;
  content_ += '>';
  appendEscaped(content_, text, kInText);
}

void XmlWriter::addChild(const std::string& name, const std::string& text,
                         const XmlAttributes& attributes) {
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
  std::string bytes = before_;
  if (element_.empty()) {
    bytes.back() = '/';  // an empty root is one tag
    bytes += behind_.substr(behind_.find('>'));
    return bytes;
  }
  bytes.reserve(before_.size() + content_.size() + element_.size() + behind_.size() + 3);
  bytes += content_;
  endElement(bytes);
  return bytes += behind_;
}

}  // namespace velra
