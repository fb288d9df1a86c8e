// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/PlainXml.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/Text.h"
#include "platform/xml/XmlDocument.h"

namespace velra {
namespace {

/// All that a node tells, and what is below it.
std::string told(const XmlNode& node) {
  std::string text = node.nodeName() + "|" + std::string(node.baseName()) + "|" +
                     std::string(node.prefix()) + "|" + node.text() + "|" + node.typedText() +
                     (node.isElement() ? "E" : "") + (node.isText() ? "T" : "");
  for (const XmlAttribute& at : node.attributes()) {
    text += "@" + at.nodeName + "|" + at.baseName + "|" + at.value + "|";
    text += node.attribute(at.nodeName) + (node.hasAttribute(at.nodeName) ? "!" : "?");
  }
  for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
    text += "(" + told(child) + ")";
  }
  for (XmlNode child = node.firstElement(); child; child = child.nextElement()) {
    text += "," + child.nodeName();
  }
  return text;
}

std::string toldOf(const std::string& bytes, const std::string& behind) {
  XmlDocument document;
  if (!document.parse(bytes + behind, "")) return "not read: " + document.reason();
  const std::string shell = document.shellText();
  return told(document.documentElement()) +
         (behind.empty() ? shell : replaceAll(shell, behind + "\n", ""));
}

/// A comment behind the root asks for the library, which is the rule for what is read without it.
TEST(PlainXml, TellsWhatTheLibraryTells) {
  const std::vector<std::string> files = {
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<V xmlns:s=\"urn:s\" s:l=\"v.xsd\"><T>a &amp; b"
      "</T>\n<S><I>x</I><I> </I></S> <C a=\"1\" b='2'/></V>\n",
      "<a> <b> </b> t<c><d/>&lt;\n</c>]] &gt;</a>",
      "<p:a xmlns:p=\"urn:p\" x=\"1\"><p:b>Caf\xC3\xA9</p:b><q:c d=\"e\"/></p:a >",
      "<a xmlns=\"urn:d\" p:x=\"1\"><b>\xF0\x9F\x98\x80</b></a>"};
  const std::vector<std::string> pieces = {"<",
                                           ">",
                                           "/",
                                           "&",
                                           ";",
                                           "]]>",
                                           "]",
                                           "\"",
                                           "'",
                                           "=",
                                           ":",
                                           "x",
                                           "1",
                                           "-",
                                           "\t",
                                           "\r",
                                           "\x01",
                                           "\xC0\x80",
                                           "\xED\xA0\x80",
                                           "\xEF\xBF\xBE",
                                           "\xEF\xBB\xBF",
                                           "\xC2",
                                           "<b>",
                                           "</b>",
                                           "<!-- -->",
                                           "<![CDATA[x]]>",
                                           "<?p?>",
                                           "&#65;",
                                           "&quot;",
                                           " a=\"1\"",
                                           " p:x=\"2\"",
                                           " q:x=\"3\"",
                                           " xmlns:q=\"urn:p\"",
                                           " xmlns:q=\"\"",
                                           " xml:space=\"preserve\"",
                                           "xml",
                                           " standalone='yes'"};
  std::mt19937 random(16);
  int plain = 0;
  for (int i = 0; i < 20000; ++i) {
    std::string bytes = files[random() % files.size()];
    for (auto changes = i < 100 ? 0 : random() % 4; changes > 0; --changes) {
      const std::size_t at = random() % bytes.size();
      if (random() % 3 == 0) bytes.erase(at, 1 + random() % 4);
      bytes.insert(std::min(at, bytes.size()), pieces[random() % pieces.size()]);
    }
    const bool isPlain = xml::PlainXml::read(bytes) != nullptr;
    ASSERT_TRUE(isPlain || i >= 100) << bytes;
    if (!isPlain) continue;
    ++plain;
    ASSERT_EQ(toldOf(bytes, ""), toldOf(bytes, "<!-- -->")) << bytes;
  }
  EXPECT_GT(plain, 1000);
}

}  // namespace
}  // namespace velra
