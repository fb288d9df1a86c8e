// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// For the files of this folder and their tests.
namespace velra::xml {

/// A node below the root of a document, the root, or an attribute. Places are those of the row, and
/// of its two blocks of text.
struct RowNode {
  enum class Kind : std::uint8_t {
    Element,
    Declaration,  // of a namespace, among the attributes
    Attribute,
    Text,
    Cdata,
    Reference,  // to an entity
    Comment,
    Instruction,
    LoneBlank  // white space that is all that its element holds
  };

  std::uint32_t name = 0;  // with its prefix
  std::uint32_t nameSize = 0;
  std::uint32_t prefixSize = 0;
  std::uint32_t text = 0;  // of the node and of all below it, or the value
  std::uint32_t textSize = 0;
  std::uint32_t span = 1;        // itself, its attributes and all below it
  std::uint32_t attributes = 0;  // which follow it
  Kind kind = Kind::Element;
  bool last = false;  // of those in its parent
};

/// The content of a document as one row of nodes, in document order, and two blocks of text. It is
/// not changed once it is made, and belongs to no thread.
class XmlRow {
 public:
  const RowNode& root() const { return nodes_.front(); }

  std::string_view name(const RowNode& node) const { return in(names_, node.name, node.nameSize); }
  /// Of an element, of text, of a reference or of a lone blank; "" of others.
  std::string_view text(const RowNode& node) const {
    const bool named = node.kind == RowNode::Kind::Attribute ||
                       node.kind == RowNode::Kind::Declaration ||
                       node.kind == RowNode::Kind::LoneBlank;
    return in(named ? names_ : texts_, node.text, node.textSize);
  }

  /// The document with an empty root, as text.
  const std::string& shell() const { return *shell_; }

 private:
  friend class RowMaker;

  static std::string_view in(const std::string& block, std::uint32_t start, std::uint32_t size) {
    return std::string_view(block).substr(start, size);
  }

  std::vector<RowNode> nodes_;
  std::string names_;  // and values of attributes, and lone blanks
  std::string texts_;  // so that the text of an element and of all below it is one piece
  std::shared_ptr<const std::string> shell_;
};

using Row = std::unique_ptr<const XmlRow>;

/// Makes a row of what a document is told to hold, from the root's begin to its end.
class RowMaker {
 public:
  /// The document has some bytes.
  explicit RowMaker(std::size_t bytes);

  void open(std::string_view prefix, std::string_view name);
  /// Of the element that was opened last, before anything is put into it.
  void addAttribute(RowNode::Kind kind, std::string_view prefix, std::string_view name,
                    std::string_view value);
  /// Anything but an element.
  void add(RowNode::Kind kind, std::string_view name, std::string_view text);
  void close();

  std::size_t depth() const { return open_.size(); }
  /// True when nothing is in the element that is open.
  bool isEmpty() const { return open_.back().last == 0; }

  Row take(std::shared_ptr<const std::string> shell);

 private:
  struct Open {
    std::uint32_t place;
    std::uint32_t last;  // of the nodes in it; 0 when there are none
  };

  RowNode& append(RowNode::Kind kind, std::string_view prefix, std::string_view name);
  void setText(RowNode& node, std::string& block, std::string_view text);

  std::unique_ptr<XmlRow> row_;
  std::vector<Open> open_;
};

}  // namespace velra::xml
