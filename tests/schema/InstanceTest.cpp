// SPDX-License-Identifier: GPL-3.0-or-later

// How fields come out of an object's file and go back into it.
#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlWriter.h"
#include "schema/CloseList.h"
#include "schema/ObjectFiles.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"
#include "support/TestApplication.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class PlainFiles : public ObjectFiles {
 public:
  std::string saveFailure;

  std::string strOpen(XmlDocument& document, const std::string& path) override {
    return document.load(path) ? "" : "XML Parser: " + document.reason();
  }
  std::string strSave(const XmlWriter& document, const std::string& path) override {
    return saveFailure.empty() ? writeFileInPlace(path, document.bytes()) : saveFailure;
  }
};

const std::string kSchema =
    "<xsd:schema xmlns:xsd='u'><e name='C'><complexType><xsd:sequence>"
    "<f name='s' type='xsd:string'/><f name='i' type='xsd:integer'/><f name='d' type='xsd:date'/>"
    "<f name='b' type='xsd:boolean'/><f name='set' type='SetOfStrings'/>"
    "<f name='r' type='xsd:float'/><f name='l' type='L'/><f name='c' type='ChunkType'/>"
    "<f name='w' type='SetOfWords'/><f name='g' type='SetOfGUIDs'/><f name='u' type='Other'/>"
    "</xsd:sequence></complexType></e><simpleType name='L'><restriction>"
    "<enumeration value='x'/></restriction></simpleType></xsd:schema>";

class InstanceTest : public ::testing::Test, protected test::TestApplication {
 protected:
  InstanceTest() {
    const std::string schema = folder.write("s.xsd", kSchema);
    folder.write("machine.ini", "[SOFTWARE\\Velra]\nXSDPath=" + schema + "\n");
  }

  struct Object {
    Object(ApplicationModule& app, SharedParts& shared) : fields(app, shared) {}
    Object(InstanceTest& test, const std::string& xml) : Object(test.app, test.shared_) {
      const std::string path = test.folder.write("c.xml", xml);
      message = fields.strLoad(document, path, schema, test.files_, "C");
    }

    SEColl fields;
    InstanceDocument document;
    std::shared_ptr<const SchemaFile> schema;
    std::string message;
  };
  Object read(const std::string& xml) { return {*this, xml}; }
  Object readContent(const std::string& content) { return read("<C>" + content + "</C>"); }

  /// The content of the root after a save of all fields.
  std::string written(Object& object) {
    for (SchemaElement& field : object.fields) field.setBChanged(true);
    EXPECT_TRUE(object.fields.bSave(object.document, folder / "c.xml", files_));
    EXPECT_FALSE(object.fields.bChanged());
    const std::string bytes = folder.read("c.xml");
    const std::size_t start = bytes.find("<C>");
    if (start == std::string::npos) return "";
    return bytes.substr(start + 3, bytes.find("</C>") - start - 3);
  }

  SharedParts shared_{app};
  PlainFiles files_;
};

// Each line of the file has the content that is read, an arrow, and what is written of it: nothing
// when the field is unassigned.
TEST_F(InstanceTest, ReadsAndWritesEachType) {
  const std::string file = VELRA_SOURCE_DIR "/tests/data/fields.txt";
  for (const std::string& escaped : split(trimmed(readFile(file).bytes), '\n')) {
    SCOPED_TRACE(escaped);
    const std::string line = replaceAll(escaped, "\\n", "\n");
    const std::size_t arrow = line.find("  =>");
    ASSERT_NE(arrow, std::string::npos);
    const std::string expected(trimmed(line.substr(arrow + 4)));
    Object object = readContent(line.substr(0, arrow));
    EXPECT_EQ(object.message, "");
    EXPECT_FALSE(object.fields.bChanged());
    EXPECT_EQ(object.fields.iNumValid(), expected.empty() ? 0 : 1);
    for (const SchemaElement& field : object.fields) {
      EXPECT_EQ(field.bValid(), !isEmpty(field.vContent()));
    }
    EXPECT_EQ(written(object), expected);
    Object again = readContent(expected);
    EXPECT_EQ(written(again), expected == "<s/>" || expected == "<set/>" ? "" : expected);
  }
}

// What objects of a class share, and the fields of one object, ends with the first change to it.
TEST_F(InstanceTest, FieldsDepartFromTheirClassAndFromTheirFile) {
  const Object sibling = readContent("<s>sibling</s>");
  Value copy;
  {
    Object object = readContent("<s>first</s><i>7</i><g><GUID>a</GUID></g>");
    SEColl& fields = object.fields;
    copy = fields.field("s")->vContent();
    fields.field("s")->setStrName("renamed");
    fields.Item(2).assign("seven");
    fields.Remove(1);
    fields.Add(tyType::String, "", "Last", "new", "", false, false, false, true, "key");
    EXPECT_EQ(&fields.Item("key"), &fields.Item(fields.Count()));
    EXPECT_EQ(fields.relationField("last")->strName(), "Last");
    EXPECT_EQ(fields.field("renamed"), nullptr);
    EXPECT_EQ(written(object), "<i>seven</i><g><GUID>a</GUID></g><Last>new</Last>");
  }
  EXPECT_EQ(copy, Value("first"));
  EXPECT_EQ(sibling.fields.assignedText("s"), "sibling");
  EXPECT_EQ(sibling.fields.Item(2).tyType(), tyType::Integer);
}

TEST_F(InstanceTest, WritesValuesOfFormsAndDefaults) {
  const struct {
    const char* field;
    Value value;
    const char* written;
  } cases[] = {
      {"d", std::string("01/01/2001"), "<d>2001-01-01</d>"},
      {"i", std::int16_t{-5}, "<i>-5</i>"},
      {"r", 0.1, "<r>0.1</r>"},
      {"r", 3.0, "<r>3</r>"},
      {"b", std::int16_t{1}, "<b>true</b>"},
      {"b", std::int16_t{0}, "<b>false</b>"},
      {"b", std::int16_t{2}, "<b>false</b>"},
      {"b", std::string("True"), "<b>true</b>"},
      {"b", std::string("yes"), "<b>false</b>"},
      {"set", StringList{}, "<set/>"},
      {"c", std::make_shared<Chunk>(Chunk{"", "", 1.5, 0.0005, ""}),
       "<c start=\"1500\" end=\"0\" reasons=\"0\"/>"},
      {"w", std::make_shared<WordColl>(), "<w/>"},
  };
  for (const auto& one : cases) {
    Object object = readContent("");
    SchemaElement* field = object.fields.field(one.field);
    field->setVContent(one.value);
    field->setBValid(true);
    EXPECT_EQ(written(object), one.written);
  }
}

TEST_F(InstanceTest, TellsWhyAnObjectCannotBeRead) {
  EXPECT_EQ(read("<D/>").message, "C: class name does not match xml instance");
  EXPECT_EQ(read("<C>").message.rfind("XML Parser: Line 1", 0), 0U);
  EXPECT_EQ(read("<p:C xmlns:p='u'/>").message, "");
  EXPECT_THROW(readContent("<c start='soon' end='1'/>"), RunTimeError);
  EXPECT_THROW(readContent("<w><Word start=''/></w>"), RunTimeError);

  folder.write("s.xsd", "<xsd:schema xmlns:xsd='u'><e name='C'/></xsd:schema>");
  EXPECT_EQ(read("<C/>").message,
            "Error loading the schema: C: type definition must have a complexType child element!");
  folder.write("s.xsd", "<broken");
  EXPECT_EQ(read("<C/>").message.rfind("Error loading the schema: Line", 0), 0U);
  folder.write("machine.ini", "");
  const Object bare = read("<Anything/>");
  EXPECT_EQ(bare.message, "");
  EXPECT_EQ(bare.fields.Count(), 0U);
}

TEST_F(InstanceTest, NewObjectsNeedASchema) {
  Object object(app, shared_);
  const auto initialise = [&](const std::string& path, const std::string& className) {
    return object.fields.strInitAsNew(object.document, "", object.schema, path, "xsd", className);
  };
  EXPECT_EQ(initialise("", "C"),
            "There is no schema reference in the document, please fill the "
            "xsi:noNamespaceSchemaLocation attribute in the element");
  EXPECT_EQ(initialise(folder / "none.xsd", "C").rfind("Error loading the schema: ", 0), 0U);
  EXPECT_EQ(initialise(folder / "s.xsd", "D"),
            "The schema does not provide any definition of the type: D");
  EXPECT_EQ(initialise(folder / "s.xsd", "C"), "");
  EXPECT_EQ(object.fields.Count(), 11U);
  object.fields.field("s")->setVContent(std::string("new"));
  object.fields.field("s")->setBValid(true);
  object.fields.field("s")->setBChanged(true);
  EXPECT_TRUE(object.fields.bSave(object.document, folder / "new.xml", files_));
  const std::string expected =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<C xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
      "xsi:noNamespaceSchemaLocation=\"s.xsd\"><s>new</s></C>\n";
  EXPECT_EQ(folder.read("new.xml"), expected);
  object.fields.field("s")->setBChanged(true);
  EXPECT_TRUE(object.fields.bSave(object.document, folder / "new.xml", files_));
  EXPECT_EQ(folder.read("new.xml"), expected);
}

TEST_F(InstanceTest, AFailedSaveIsShownAndTheFieldsStayChanged) {
  Object object = readContent("<s>a</s>");
  files_.saveFailure = "disk full";
  EXPECT_TRUE(object.fields.bSave(object.document, folder / "c.xml", files_));  // not changed
  object.fields.field("s")->setBChanged(true);
  EXPECT_FALSE(object.fields.bSave(object.document, folder / "c.xml", files_));
  EXPECT_EQ(ui.takeShown(), Texts{"plain: disk full"});
  EXPECT_TRUE(object.fields.bChanged());
  EXPECT_TRUE(object.fields.bSaveAs(object.document, folder / "c.xml", files_));
  EXPECT_TRUE(object.fields.bChanged());
  EXPECT_TRUE(ui.takeShown().empty());

  files_.saveFailure.clear();
  object.fields.field("s")->setVContent(std::string("a\x01z"));
  EXPECT_FALSE(object.fields.bSave(object.document, folder / "c.xml", files_));
  EXPECT_FALSE(object.fields.bSaveAs(object.document, folder / "c.xml", files_));
  const Texts shown = ui.takeShown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0], shown[1]);
  EXPECT_TRUE(shown[0].starts_with("plain: "));
  EXPECT_EQ(folder.read("c.xml"), "<C><s>a</s></C>");
}

TEST_F(InstanceTest, SearchCountsValuesThatHoldTheText) {
  const Object object = readContent(
      "<s>Sea sea SEA Ärger</s><set><i>the sea</i><i>land</i><i/></set>"
      "<w><W start='0' end='1'>Sea</W><W start='1' end='2'>air</W></w><u>sea</u><l>sea</l>"
      "<g><GUID>sea.xml</GUID></g>");
  const struct {
    const char* text;
    bool matchCase;
    int hits;
  } cases[] = {
      {"sea", false, 3},  {"sea", true, 2},   {"SEA", true, 1},  {"ärger", false, 1},
      {"Ärger", true, 1}, {"ärger", true, 0}, {"xml", false, 0}, {"", false, 5},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(object.fields.iSearchText(one.text, one.matchCase), one.hits) << one.text;
  }
  EXPECT_EQ(object.fields.iNumValid(), 6);
  EXPECT_EQ(object.fields.iNumValidAndReadable(), 3);
}

}  // namespace
}  // namespace velra
