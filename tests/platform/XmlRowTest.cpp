// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlRow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "platform/xml/RowReader.h"
#include "platform/xml/XmlDocument.h"

namespace velra {
namespace {

/// All that a node tells, and what is below it.
std::string told(const XmlNode& node) {
  std::string text = std::string(node.nodeName()) + "|" + std::string(node.baseName()) + "|" +
                     std::string(node.prefix()) + "|" + std::string(node.text()) + "|" +
                     std::string(node.typedText()) + (node.isElement() ? "E" : "") +
                     (node.isText() ? "T" : "");
  for (const XmlAttribute& at : node.attributes()) {
    text += "@" + at.nodeName + "|" + at.baseName + "|" + at.value + "|";
    text += node.attribute(at.nodeName).value_or("?");
  }
  for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
    text += "(" + told(child) + ")";
  }
  for (XmlNode child = node.firstElement(); child; child = child.nextElement()) {
    (text += ",") += child.nodeName();
  }
  return text;
}

std::string told(const xml::Row& row) {
  return row ? told(XmlNode(row.get(), &row->root())) + row->shell() : "none";
}

std::string repeatedTimes(int times, const std::string& text) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

const char* const kUsual =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<V xmlns:s=\"urn:s\" s:l=\"v.xsd\"><T>a &amp; b"
    "</T>\n<S><I>x</I><I> </I></S> <C a=\"1\" b='2'/></V>\n";

/// Without a tree are read the first ones: for the others nothing is said, and the tree tells.
TEST(XmlRow, IsReadWithoutATreeWhereAFileIsPlain) {
  struct Case {
    std::string bytes;
    bool plain = true;
  } cases[] = {
      {kUsual},
      {"<a> <b> </b> t<c><d/>&lt;\r\n</c>]] &#233; &#10;</a>\n\n"},
      {"<p:a xmlns:p=\"urn:p\" x='1' p:x='2'><p:b>Caf\xC3\xA9</p:b><c xmlns='urn:c'/></p:a >"},
      {"<?xml version='1.0' encoding='utf-8' standalone='yes'?><a xmlns=\"urn:d\"\n x = '1\n2' >"
       "\xF0\x9F\x98\x80<b>  </b>\t</a>"},
      {"<a>" + repeatedTimes(20'000, "<w s='1'>word &gt; " + std::string(20, 'x') + "</w>") +
       "</a>"},
      {"<a>" + repeatedTimes(30'000, "<w s='1'>word &gt; " + std::string(20, 'x') + "</w>") +
           "</a>",
       false},
      {"<a/>", false},
      {"<a><![CDATA[x]]> </a>", false},
      {"<a>x<!-- c -->y</a>", false},
      {"<?p i?><a>x</a>", false},
      {"<a>x</a><!-- c > -->", false},
      {"<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e 'x'>]><a>&e;</a>", false},
      {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>", false},
      {"\xEF\xBB\xBF<a>x</a>", false},
      {std::string("\xFF\xFE<\0a\0>\0x\0<\0/\0a\0>\0", 18), false},
      {"<a b='x &amp; y'>z</a>", false},
      {"<a xml:id='x'>z</a>", false},
      {"<a><p:b>z</p:b></a>", false},
      {"<a xmlns='urn a'>z</a>", false},
      {"<a" +
           repeatedTimes(1,
                         " a='' b='' c='' d='' e='' f='' g='' h='' i='' j='' k='' l='' m='' n='' "
                         "o='' p='' q=''") +
           ">z</a>",
       false},
      {repeatedTimes(101, "<a>") + repeatedTimes(101, "</a>"), false},
      {repeatedTimes(300, "<a>") + repeatedTimes(300, "</a>"), false},
      {"<a>x", false},
      {"<a>\xE9</a>", false},
      {std::string("<a>x</a>\0", 9), false},
      {"", false},
  };
  for (const Case& one : cases) {
    const xml::Row row = xml::plainRow(one.bytes);
    ASSERT_EQ(row != nullptr, one.plain) << one.bytes.substr(0, 100);
    std::string reason;
    if (row) {
      EXPECT_EQ(told(row), told(xml::rowByTree(one.bytes, "", reason))) << one.bytes.substr(0, 100);
    }
    ASSERT_TRUE(xml::plainRow(kUsual)) << "after " << one.bytes.substr(0, 100);
  }
}

TEST(XmlRow, IsTheOneOfTheTreeWhateverTheBytesAre) {
  const std::string files[] = {
      kUsual, "<a> <b> </b> t<c><d/>&lt;\n</c>]] &gt;</a>",
      "<p:a xmlns:p=\"urn:p\" x=\"1\"><p:b>Caf\xC3\xA9</p:b><q:c d=\"e\"/></p:a >",
      "<a xmlns=\"urn:d\" x=\"1\"><b>\xF0\x9F\x98\x80</b></a>"};
  const std::string pieces[] = {"<",
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
    std::string bytes = files[random() % std::size(files)];
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
      const std::size_t at = random() % bytes.size();
      if (random() % 3 == 0) bytes.erase(at, 1 + random() % 4);
      bytes.insert(std::min(at, bytes.size()), pieces[random() % std::size(pieces)]);
    }
    const xml::Row row = xml::plainRow(bytes);
    if (!row) continue;
    ++plain;
    std::string reason;
    ASSERT_EQ(told(row), told(xml::rowByTree(bytes, "", reason))) << bytes << reason;
  }
  EXPECT_GT(plain, 1000);
}

}  // namespace
}  // namespace velra
