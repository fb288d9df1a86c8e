// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velra {

class XmlShell;

/// Names and values, each name once.
using XmlAttributes = std::vector<std::pair<std::string, std::string>>;
/// The same for as long as a call lasts: a long transcript has tens of thousands.
using XmlAttributeViews = std::initializer_list<std::pair<std::string_view, std::string_view>>;

/// Writes a document again from its shell and new content of the root, as text: a tree of nodes
/// would cost as much as all the rest of a save. A name or a text that XML cannot hold raises
/// kInvalidArgument with what it is about, and leaves the document as it was.
class XmlWriter {
 public:
  explicit XmlWriter(const XmlShell& shell);

  /// Appends an element to the root, and makes it the one that `addChild` adds to.
  void addElement(const std::string& name, std::string_view text,
                  XmlAttributeViews attributes = {});
  void addChild(const std::string& name, std::string_view text, XmlAttributeViews attributes = {});

  /// The whole file in UTF-8.
  std::string bytes() const;

 private:
  void endElement(std::string& target) const;

  std::string before_;
  std::string behind_;
  std::string content_;   // of the root, but for the end of its last element
  std::string element_;   // the name of that one; "" while there is none
  bool isEmpty_ = false;  // it has no content yet, and its start is still open
};

}  // namespace velra
