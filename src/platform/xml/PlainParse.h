// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libxml/parser.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/xml/XmlBounds.h"
#include "platform/xml/XmlRow.h"

/// For the files of this folder alone.
namespace velra::xml {

/// One parse of a plain file, whose elements and texts the library tells one after the other: it
/// makes a row of them, and gives up where anything else is told.
class PlainParse : public ParseSession {
 public:
  /// The context's _private has to point at the session in it.
  PlainParse(xmlParserCtxt& context, const std::string& bytes);

  /// Has a parser tell of what it meets to the session of its context.
  static void install(xmlSAXHandler& handler);

  void start(std::string_view prefix, std::string_view name);
  /// Each namespace has two texts: its prefix, and what it stands for.
  void addSpaces(int count, const xmlChar** texts);
  /// Each attribute has five: its name, its prefix, its namespace, and the begin and end of its
  /// value.
  void addAttributes(int count, const xmlChar** texts);
  void addText(std::string_view text) { pending_ += text; }
  void end();
  void giveUp();

  bool isPlain() const { return plain_; }
  /// Of the file without the content of its root, once it was parsed to its end.
  std::string emptied() const;
  RowMaker& maker() { return maker_; }

 private:
  bool findContent();
  void endText(bool closes);

  xmlParserCtxt& context_;
  const std::string& bytes_;
  RowMaker maker_;
  std::string pending_;      // text that has not ended
  std::size_t content_ = 0;  // where that of the root begins
  bool plain_ = true;
};

}  // namespace velra::xml
