// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlShell.h"
#include "platform/xml/XmlWriter.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "platform/xml/XmlDocument.h"

namespace velra {
namespace {

const std::string kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string shellOf(const std::string& bytes) {
  XmlDocument document;
  EXPECT_TRUE(document.parse(bytes, "")) << document.reason();
  return document.shellText();
}

TEST(XmlWriter, WritesUnformatted) {
  XmlWriter writer(newShell("Video", {{"xmlns:xsi", "urn:xsi"}, {"xsi:location", "a&b.xsd"}}));
  writer.addElement("Title", "Caf\xC3\xA9 <1> & \"2\"");
  writer.addElement("Set", "");
  writer.addChild("GUID", "a/b");
  writer.addChild("GUID", " c ");
  writer.addElement("Time", "film", {{"start", "0"}, {"end", "\xC3\xA9\n"}});
  EXPECT_EQ(writer.bytes(), kDeclaration +
                                "<Video xmlns:xsi=\"urn:xsi\" xsi:location=\"a&amp;b.xsd\">"
                                "<Title>Caf\xC3\xA9 &lt;1&gt; &amp; \"2\"</Title>"
                                "<Set><GUID>a/b</GUID><GUID> c </GUID></Set>"
                                "<Time start=\"0\" end=\"\xC3\xA9&#10;\">film</Time></Video>\n");
}

TEST(XmlWriter, PutsTheDeclarationFirstOnce) {
  struct Case {
    const char* file;
    std::string written;
  } cases[] = {
      {"<a>1</a>", kDeclaration + "<a><b>2</b></a>\n"},
      {"<?xml version='1.0'?><a/>", kDeclaration + "<a><b>2</b></a>\n"},
      {"<!--c--><a/>", kDeclaration + "<!--c-->\n<a><b>2</b></a>\n"},
      {"<?style x?><a/>", "<?style x?>\n<a><b>2</b></a>\n"},
      {"<?xml version='1.0'?><?style x?><a/>", kDeclaration + "<?style x?>\n<a><b>2</b></a>\n"},
      {"<?xml version='1.0' standalone='yes'?><a/>",
       "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<a><b>2</b></a>\n"},
  };
  for (const Case& one : cases) {
    std::string bytes = one.file;
    for (int save = 0; save < 2; ++save) {
      XmlWriter writer(shellOf(bytes));
      writer.addElement("b", "2");
      bytes = writer.bytes();
      EXPECT_EQ(bytes, one.written) << one.file;
    }
  }
}

TEST(XmlWriter, KeepsTheDocumentType) {
  const std::string file =
      "<!DOCTYPE a [\n<!ELEMENT a (b+)>\n<!ELEMENT b (#PCDATA)>\n<!ENTITY e "
      "\"x\">\n]><a><b>1</b></a>";
  XmlWriter writer(shellOf(file));
  writer.addElement("b", "2");
  XmlDocument again;
  EXPECT_TRUE(again.parse(writer.bytes(), "")) << again.reason();
  EXPECT_NE(writer.bytes().find("<!ENTITY e \"x\">"), std::string::npos) << writer.bytes();
}

TEST(XmlWriter, EveryTextComesBack) {
  for (const std::string& text :
       {std::string("plain"), std::string("]]>"), std::string("a\tb\nc\rd"), std::string("&amp;"),
        std::string("\xF0\x9F\x8E\xAC"), std::string("<!-- -->"), std::string(300'000, 'x')}) {
    XmlWriter writer(newShell("a", {}));
    writer.addElement("b", text, {{"c", text}});
    XmlDocument document;
    ASSERT_TRUE(document.parse(writer.bytes(), "")) << document.reason();
    EXPECT_EQ(document.documentElement().firstElement().text(), text);
    EXPECT_EQ(document.documentElement().firstElement().attribute("c"), text);
  }
}

TEST(XmlWriter, RefusesWhatXmlCannotHold) {
  struct Case {
    std::string name;
    std::string text;
    const char* about;
  } cases[] = {
      {"Title", std::string("a\0b", 3), "Title: a file cannot hold the character U+0000"},
      {"Title", "a\x01", "Title: a file cannot hold the character U+0001"},
      {"Title", "a\xE9", "Title: the byte E9"},
      {"Title", "\xED\xA0\x80", "Title"},
      {"Title", "\xEF\xBF\xBE", "U+FFFE"},
      {"two words", "", "two words"},
      {"1st", "", "1st"},
      {"", "", "\"\""},
      {"a<b", "", "a<b"},
  };
  for (const Case& one : cases) {
    XmlWriter writer(newShell("a", {}));
    try {
      writer.addElement(one.name, one.text);
      ADD_FAILURE() << one.about;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), kInvalidArgument);
      EXPECT_NE(error.description().find(one.about), std::string::npos) << error.description();
    }
    EXPECT_EQ(writer.bytes(), kDeclaration + "<a/>\n") << "the document stays as it was";
  }
  EXPECT_THROW(XmlWriter(std::string("no shell")), RunTimeError);
  EXPECT_THROW(newShell("no name", {}), RunTimeError);
}

TEST(XmlWriter, SetsAttributesOfTheRootInTheirPlace) {
  const std::string shell =
      shellOf("<?xml version='1.0'?><!--c--><a xmlns:x='urn:x' x:l='old' m='1'>text</a>");
  EXPECT_EQ(
      withRootAttributes(shell, {{"x:l", "new & \xC3\xA9"}, {"n", "2"}, {"xmlns:x", "urn:y"}}),
      kDeclaration +
          "<!--c-->\n<a xmlns:x=\"urn:y\" x:l=\"new &amp; \xC3\xA9\" m=\"1\" n=\"2\"/>\n");
  EXPECT_EQ(withRootAttributes(newShell("a", {}), {{"m", "1"}}), "<a m=\"1\"/>\n");
}

}  // namespace
}  // namespace velra
