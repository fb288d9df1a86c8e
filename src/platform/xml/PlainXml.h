// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Files as programs write them, without comments, sections, entities of their own, a document type
/// or namespaces below the root, need none of what a parser knows beyond tags and texts. They are
/// read several times as fast as by the library, which has to read all others and to tell what is
/// wrong with any. For the files of this folder alone.
namespace velra::xml {

/// An element, a text, or the name or the value of an attribute. They stand in document order: an
/// element, its attributes, what is in it. Texts of white space alone are there only where they are
/// all that an element holds.
struct PlainNode {
  enum class Kind : std::uint8_t { Element, Text, LoneBlank, Attribute };

  const char* start = nullptr;  // of the name, or the text
  std::uint32_t size = 0;       // of that
  std::uint32_t span = 1;       // nodes up to the one behind all that is in it
  std::uint16_t values = 0;     // nodes of its attributes: two for each
  Kind kind = Kind::Element;
  bool last = false;  // in its element

  std::string_view view() const { return {start, size}; }
  const PlainNode* content() const { return span > values + 1U ? this + 1 + values : nullptr; }
  const PlainNode* next() const { return last ? nullptr : this + span; }
};

/// A document that asks for nothing unusual.
class PlainXml {
 public:
  /// Null for all that the library has to look at.
  static std::shared_ptr<const PlainXml> read(std::string_view bytes);

  const PlainNode& root() const { return nodes_.front(); }
  /// All but the content of the root.
  const std::string& shell() const { return *shell_; }

 private:
  PlainXml() = default;

  std::string bytes_;  // the nodes look at it
  std::vector<PlainNode> nodes_;
  std::shared_ptr<const std::string> shell_;
};

/// The text of a node and of all below it, as XmlNode::text has it.
std::string textOf(const PlainNode& node);

}  // namespace velra::xml
