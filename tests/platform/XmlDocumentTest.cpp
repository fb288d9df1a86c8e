// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlDocument.h"

#include <gtest/gtest.h>

#include <random>

#include "base/Text.h"
#include "platform/xml/XmlShell.h"
#include "platform/xml/XmlWriter.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::TemporaryFolder;

struct BadFile {
  const char* name;
  std::string bytes;
  const char* reason;  // a piece of it
};

std::string nested(std::size_t levels) {
  std::string text;
  for (std::size_t i = 0; i < levels; ++i) text += "<a>";
  for (std::size_t i = 0; i < levels; ++i) text += "</a>";
  return text;
}

/// Each entity stands for ten of the one before.
std::string laughs() {
  std::string text = "<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY l0 'ha'>";
  for (int i = 1; i < 10; ++i) {
    text += "<!ENTITY l" + std::to_string(i) + " '";
    for (int k = 0; k < 10; ++k) text += "&l" + std::to_string(i - 1) + ";";
    text += "'>";
  }
  return text + "]><a>&l9;</a>";
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

/// Some of them would take a minute each, or gigabytes, if they were read.
std::vector<BadFile> traps() {
  const std::string optional = repeated(",b?", 3000).substr(1);
  const std::string words = repeated("|w", 4000).substr(1);
  std::string type = "<!DOCTYPE a [<!ELEMENT a ANY>";
  for (int i = 0; i < 4000; ++i) type += "<!ATTLIST a a" + std::to_string(i) + " CDATA ''>";
  std::string attributes;
  for (int i = 0; i < 50'000; ++i) attributes += " a" + std::to_string(i) + "=''";
  return {
      {"optional.xml", "<!DOCTYPE a [<!ELEMENT a (" + optional + ")>]><a/>", "too long"},
      {"mixed.xml",
       "<!DOCTYPE a [<!ELEMENT z EMPTY><!ELEMENT a (#PCDATA|" + words + "|z)*>]><a>" +
           repeated("<z/>", 200'000) + "</a>",
       "too long"},
      {"defaults.xml", type + "]><a>" + repeated("<a/>", 4000) + "</a>", "too long"},
      {"attributes.xml", "<a" + attributes + "/>", "too many attributes"},
      {"elements.xml", "<a>" + repeated("<b/>", 4'000'000) + "</a>", "too many elements"},
      {"grown.xml",
       "<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e '" + std::string(10'000, 'x') + "'>]><a>" +
           repeated("&e;", 1000) + "</a>",
       "expand too far"},
  };
}

std::vector<BadFile> badFiles() {
  return {
      {"empty.xml", "", "empty"},
      {"not-xml.xml", "film", "Line 1"},
      {"truncated.xml", "<a>\n<b>text", "Line 2"},
      {"mismatched-tags.xml", "<a>\n<b>\n</a>",
       "Line 3: Opening and ending tag mismatch: b line 2"},
      {"two-roots.xml", "<a/><b/>", "Extra content"},
      {"attribute-twice.xml", "<a b='1' b='2'/>", "redefined"},
      {"bare-ampersand.xml", "<a>this & that</a>", "Line 1"},
      {"unknown-entity.xml", "<a>&e;</a>", "Entity 'e' not defined"},
      {"zero-byte.xml", std::string("<a>x\0y</a>", 10), "Line 1"},
      {"control-character.xml", "<a>\x01</a>", "Line 1"},
      {"not-utf8.xml", "<a>caf\xE9</a>", "UTF-8"},
      {"unknown-encoding.xml", "<?xml version='1.0' encoding='klingon'?><a/>", "encoding"},
      {"too-deep.xml", nested(100'000), "depth"},
      {"laughs.xml", laughs(), "entities expand too far"},
      {"invalid-by-type.xml", "<!DOCTYPE a [<!ELEMENT a EMPTY>]>\n<a><b/></a>", "Line 2"},
      {"type-elsewhere.xml", "<!DOCTYPE a SYSTEM '/etc/other.dtd'>\n<a/>", "not read"},
      {"type-above.xml", "<!DOCTYPE a SYSTEM '../beside.dtd'>\n<a/>", "not read"},
      {"type-in-network.xml", "<!DOCTYPE a SYSTEM 'http://localhost/beside.dtd'>\n<a/>",
       "not read"},
      {"type-missing.xml", "<!DOCTYPE a SYSTEM 'missing.dtd'>\n<a/>", "missing.dtd"},
  };
}

TEST(XmlDocument, RefusesBadFilesWithOneLine) {
  const TemporaryFolder folder;
  folder.write("beside.dtd", "<!ELEMENT a EMPTY>");
  std::vector<BadFile> all = badFiles();
  for (const BadFile& trap : traps()) all.push_back(trap);
  for (const BadFile& bad : all) {
    XmlDocument document;
    EXPECT_FALSE(document.load(folder.write(bad.name, bad.bytes))) << bad.name;
    EXPECT_NE(document.reason().find(bad.reason), std::string::npos)
        << bad.name << ": " << document.reason();
    EXPECT_EQ(document.reason().find('\n'), std::string::npos) << bad.name;
    EXPECT_FALSE(document.documentElement()) << bad.name;
    EXPECT_EQ(document.shellText(), "") << bad.name;
    EXPECT_TRUE(document.load(folder.write("good.xml", "<a/>"))) << "after " << bad.name;
    EXPECT_EQ(document.reason(), "");
  }
}

TEST(XmlDocument, ReadsTextsThatLookLikeAttributes) {
  const TemporaryFolder folder;
  const std::string pasted = repeated("class=\"x\" it's = '", 10'000);
  XmlDocument document;
  ASSERT_TRUE(document.load(folder.write("page.xml", "<a b='\"'>" + pasted + "</a>")))
      << document.reason();
  EXPECT_EQ(document.documentElement().text(), pasted);
}

TEST(XmlDocument, RefusesWhatIsNoFile) {
  const TemporaryFolder folder;
  XmlDocument document;
  EXPECT_FALSE(document.load(folder / "missing.xml"));
  EXPECT_NE(document.reason().find("No such file"), std::string::npos);
  EXPECT_FALSE(document.load(folder.path()));
  EXPECT_NE(document.reason().find("directory"), std::string::npos);
  folder.write("a b.xml", "<a/>");
  EXPECT_FALSE(document.load(folder / "a%20b.xml")) << "names are bytes";
}

TEST(XmlDocument, ReadsEncodings) {
  const std::string e = "\xC3\xA9";
  const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?>";
  for (const std::string& bytes :
       {"<a>" + e + "</a>", latin + "<a>\xE9</a>", "\xEF\xBB\xBF" + latin + "<a>" + e + "</a>",
        std::string("\xFF\xFE<\0a\0>\0\xE9\0<\0/\0a\0>\0", 18)}) {
    XmlDocument document;
    EXPECT_TRUE(document.parse(bytes, "")) << document.reason();
    EXPECT_EQ(document.documentElement().text(), e);
  }
}

TEST(XmlDocument, DrawsInNoFileButATypeBesideIt) {
  const TemporaryFolder folder;
  folder.write("beside.dtd", "<!ELEMENT a (#PCDATA)><!ENTITY e 'word'>");
  folder.write("secret.txt", "secret");
  XmlDocument document;
  for (const std::string& name : {std::string("beside.dtd"), std::string("./beside.dtd"),
                                  replaceAll(folder / "beside.dtd", " ", "%20")}) {
    const std::string text = "<!DOCTYPE a SYSTEM \"" + name + "\"><a>one &e;</a>";
    EXPECT_TRUE(document.load(folder.write("film.xml", text))) << document.reason();
    EXPECT_EQ(document.documentElement().text(), "one word");
  }
  document.load(folder.write(
      "film.xml", "<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e SYSTEM 'secret.txt'>]><a>&e;</a>"));
  EXPECT_EQ(document.documentElement().text(), "");
}

TEST(XmlDocument, DropsBlanksBetweenElementsAlone) {
  struct Case {
    const char* bytes;
    const char* text;
    int children;
    const char* typed = nullptr;  // when it is another text
  } cases[] = {
      {"<a>\n  <b/>\n  <c/>\n</a>", "", 2},
      {"<a> &#10;\t</a>", "", 0, " \n\t"},
      {"<a> <!-- no --> </a>", "", 1},
      {"<a>one<b> </b>two</a>", "onetwo", 3},
      {"<a><![CDATA[ ]]></a>", " ", 1},
      {"<a>one <b>two</b> three</a>", "one two three", 3},
      {"<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e 'x'>]><a>&e; &e;</a>", "x x", 3},
      {"<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e ' '>]><a>&e;</a>", " ", 1},
      {"<a>one<!-- no --><?no no?>two<![CDATA[ & ]]>three</a>", "onetwo & three", 6},
  };
  for (const Case& one : cases) {
    XmlDocument document;
    ASSERT_TRUE(document.parse(one.bytes, "")) << one.bytes << document.reason();
    EXPECT_EQ(document.documentElement().text(), one.text) << one.bytes;
    EXPECT_EQ(document.documentElement().typedText(), one.typed ? one.typed : one.text);
    int children = 0;
    for (XmlNode at = document.documentElement().firstChild(); at; at = at.nextSibling())
      ++children;
    EXPECT_EQ(children, one.children) << one.bytes;
  }
}

TEST(XmlDocument, TellsNamesWithAndWithoutPrefix) {
  XmlDocument document;
  ASSERT_TRUE(document.parse("<x:a xmlns:x='urn:x' x:b='1' y:c='2' d='3'><y:e/><f/>t</x:a>", ""));
  const XmlNode root = document.documentElement();
  EXPECT_EQ(root.nodeName(), "x:a");
  EXPECT_EQ(root.baseName(), "a");
  EXPECT_EQ(root.prefix(), "x");
  std::string seen;
  for (const XmlAttribute& at : root.attributes()) {
    seen += at.nodeName + "|" + at.baseName + "=" + at.value + " ";
    EXPECT_EQ(root.attribute(at.nodeName).value_or(""), at.nodeName == "xmlns:x" ? "" : at.value);
  }
  EXPECT_EQ(seen, "xmlns:x|x=urn:x x:b|b=1 y:c|c=2 d|d=3 ");
  EXPECT_FALSE(root.attribute("b"));
  EXPECT_EQ(root.firstElement().nodeName(), "y:e") << "nothing declares y";
  EXPECT_EQ(root.firstElement().baseName(), "e");
  EXPECT_EQ(root.firstElement().prefix(), "y");
  EXPECT_EQ(root.firstElement().nextElement().nodeName(), "f");
  EXPECT_FALSE(root.firstElement().nextElement().nextElement());
  EXPECT_EQ(XmlNode().firstChild().nextSibling().text(), "");
}

TEST(XmlDocument, ShellHoldsAllButTheContent) {
  struct Case {
    const char* bytes;
    const char* shell;
  } cases[] = {
      {"<a>text<b/></a>", "<a/>\n"},
      {"<?xml version='1.0' encoding='ISO-8859-1'?><a b='1'>\xE9</a>",
       "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a b=\"1\"/>\n"},
      {"<!-- one --><?two 2?><a xmlns='urn:a' xmlns:x='urn:x' x:y='z'><b/></a><!-- three -->",
       "<!-- one -->\n<?two 2?>\n<a xmlns=\"urn:a\" xmlns:x=\"urn:x\" x:y=\"z\"/>\n<!-- three "
       "-->\n"},
  };
  for (const Case& one : cases) {
    XmlDocument document;
    ASSERT_TRUE(document.parse(one.bytes, ""));
    const std::string before(document.documentElement().text());
    EXPECT_EQ(document.shellText(), one.shell);
    EXPECT_EQ(document.documentElement().text(), before) << "the content is still there";
  }
}

/// Whatever the bytes are, reading ends, and what was read can be written again.
TEST(XmlDocument, SurvivesDamagedBytes) {
  const std::string good =
      "<?xml version='1.0'?><!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e '<b>x</b>'><!ENTITY f '&e;'>]>"
      "<a xmlns:x='urn:x' x:y='&f;'> &e; &f;<![CDATA[ ]]><x:b c='d'/><!-- c --><?p i?></a><!--z-->";
  std::mt19937 random(7);
  for (int i = 0; i < 5000; ++i) {
    std::string bytes = good;
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
      bytes[random() % bytes.size()] = good[random() % good.size()];
    }
    if (random() % 4 == 0) bytes.resize(random() % bytes.size());
    XmlDocument document;
    if (!document.parse(bytes, "")) {
      ASSERT_NE(document.reason(), "") << bytes;
      continue;
    }
    document.documentElement().text();
    document.documentElement().attributes();
    ASSERT_NO_THROW(XmlWriter(document.shellText()).bytes()) << bytes;
  }
}

}  // namespace
}  // namespace velra
