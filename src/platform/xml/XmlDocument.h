// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Files.h"

namespace velra {

namespace xml {
class XmlRow;
struct RowNode;
}  // namespace xml

struct XmlAttribute {
  std::string nodeName;  // with its prefix
  std::string baseName;  // without
  std::string value;
};

/// A look at a node of an XmlDocument; what it tells is valid as long as the document. An empty
/// node answers every question with nothing, so that look-ups chain without tests.
class XmlNode {
 public:
  XmlNode() = default;
  XmlNode(const xml::XmlRow* row, const xml::RowNode* node) : row_(row), node_(node) {}

  explicit operator bool() const { return node_ != nullptr; }

  bool isElement() const;
  /// Comments and processing instructions hold no text of the document, blanks never do.
  bool isText() const;
  bool isComment() const;

  /// The name with its prefix, as the file has it.
  std::string_view nodeName() const;
  /// The name behind the last colon.
  std::string_view baseName() const;
  std::string_view prefix() const;

  /// The text of the node and of all below it, in document order.
  std::string_view text() const;
  /// The same of an element whose text people write: blanks count when it holds nothing else.
  std::string_view typedText() const;

  std::vector<XmlAttribute> attributes() const;
  /// The value of the attribute whose whole name is the given one.
  std::optional<std::string_view> attribute(std::string_view nodeName) const;

  XmlNode firstChild() const;
  XmlNode nextSibling() const;
  XmlNode firstElement() const;
  XmlNode nextElement() const;

 private:
  XmlNode firstIn() const;  // blanks too
  static XmlNode elementFrom(XmlNode node);

  const xml::XmlRow* row_ = nullptr;
  const xml::RowNode* node_ = nullptr;
};

/// How many element children a node has.
int iChildElements(const XmlNode& node);

/// The bytes of a file that is not too large to be parsed.
FileBytes readXml(const std::string& path);

/// A parsed XML file. Text nodes of white space alone are not part of it, but for what typedText
/// tells. Files are read and parsed as docs/file-formats.md tells: no network, bounded entities,
/// validation where there is a document type.
class XmlDocument {
 public:
  XmlDocument();
  XmlDocument(XmlDocument&&) noexcept;
  XmlDocument& operator=(XmlDocument&&) noexcept;
  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  /// Replaces the content by the file's. On failure the document is empty and `reason` has one line
  /// that tells why, and `load` says in it which file.
  bool load(const std::string& path);
  /// The same from what `readXml`, or `readFile` with a lower limit, gave for the path.
  bool load(const std::string& path, const FileBytes& file);
  bool parse(const std::string& bytes, const std::string& path);

  const std::string& reason() const { return reason_; }

  /// Of the bytes that were loaded or parsed last: `contentPrint`.
  std::uint64_t print() const { return print_; }

  /// Empty when nothing was loaded.
  XmlNode documentElement() const;

  /// The document with an empty root: all that stands outside the root, the root's name and its
  /// attributes. "" for an empty document.
  const std::string& shellText() const;

 private:
  std::unique_ptr<const xml::XmlRow> row_;
  std::string reason_;
  std::uint64_t print_ = 0;
};

}  // namespace velra
