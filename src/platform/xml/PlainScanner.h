// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/xml/PlainXml.h"

/// For the files of this folder alone.
namespace velra::xml {

/// Goes through the tags and texts of a document. What it does not know, or what is wrong, ends it:
/// the library then reads the same bytes and tells.
class PlainScanner {
 public:
  /// A null follows the bytes, and references to characters are replaced in them.
  PlainScanner(char* bytes, std::size_t size, std::vector<PlainNode>& nodes)
      : start_(bytes), at_(bytes), end_(bytes + size), nodes_(nodes) {}

  /// What stands before and behind the content of the root, with its tags.
  struct Outside {
    std::string_view before;
    std::string_view behind;
  };
  /// False when the library has to read it.
  bool scan(Outside& outside);

 private:
  struct Open {
    std::uint32_t place;      // of the element in the list
    std::uint32_t lastBelow;  // 0 when nothing is in it so far
  };

  bool skipDeclaration();
  bool skipBlanks();
  bool passed(std::string_view text);
  bool passLetter();
  bool readName(std::string_view& name);
  bool openElement();
  bool readAttribute(std::uint32_t element);
  bool isUsualAttribute(std::uint32_t element, std::string_view name, std::string_view value) const;
  bool closeElement();
  bool readText();
  bool replaceReference(char& to);
  void endText(std::string_view text);
  std::uint32_t add(std::string_view view, PlainNode::Kind kind);
  void finish(std::uint32_t place, std::uint32_t lastBelow);

  const char* const start_;
  char* at_;
  const char* const end_;
  std::vector<PlainNode>& nodes_;
  std::vector<Open> open_;
};

}  // namespace velra::xml
