// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/SchemaReader.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "platform/files/Files.h"
#include "schema/CloseList.h"
#include "schema/FieldList.h"
#include "support/TestApplication.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

struct Fields : FieldList {};

/// The message, or for each field "name:type" with "+readonly", "+ignore" and "#comment" where
/// they are set.
std::string described(const ClassDeclaration& declaration) {
  if (!declaration.message.empty()) return declaration.message;
  std::string text;
  Fields fields;
  for (const auto& each : *declaration.fields) {
    const SchemaElement& field =
        fields.Add(each->type, each->strCloseList, each->strName, {}, each->strComment,
                   each->bIgnore, each->bReadOnly, false, false);
    text += (text.empty() ? "" : " ") + field.strName() + ":" + field.strType();
    if (field.bReadOnly()) text += "+readonly";
    if (field.bIgnore()) text += "+ignore";
    if (!field.strComment().empty()) text += "#" + field.strComment();
  }
  return text;
}

class SchemaReaderTest : public ::testing::Test, protected test::TestApplication {
 protected:
  /// Reads class C out of top-level declarations.
  ClassDeclaration read(const std::string& declarations) {
    const std::string path = folder.write(
        "s.xsd", "<x:schema xmlns:x='urn:s' xmlns:y='urn:t'>" + declarations + "</x:schema>");
    return SchemaFile(app, path).classDeclaration("C", lists_);
  }

  CloseLists lists_;
};

TEST_F(SchemaReaderTest, ReadsTheDialectOrTellsWhyNot) {
  std::string name;
  std::string declarations;
  for (const std::string& line :
       split(readFile(VELRA_SOURCE_DIR "/tests/data/schemas.txt").bytes, '\n')) {
    if (line.starts_with("== ")) {
      name = line;
      declarations.clear();
    } else if (line.starts_with("-> ")) {
      EXPECT_EQ(described(read(declarations)), line.substr(3)) << name;
    } else {
      declarations += line + "\n";
    }
  }
  EXPECT_EQ(name, "== so does a comment") << "the last one";
  EXPECT_EQ(lists_.Count(), 1U);
}

TEST_F(SchemaReaderTest, ASecondReadingOfAListIsSpared) {
  const std::string own =
      "<e name='C'><complexType><all><f name='a' type='L'/></all></complexType></e>";
  for (const char* items :
       {"<enumeration value='b'/><enumeration value='a'/>", "<enumeration value='c'/>"}) {
    read(own + "<simpleType name='L'><restriction>" + items + "</restriction></simpleType>");
  }
  EXPECT_EQ(lists_.find("L")->colItems, (Texts{"b", "a"}));
}

TEST_F(SchemaReaderTest, ParsesAFileAnewOnlyWhenItHasChanged) {
  DocumentSchemas schemas(app);
  EXPECT_EQ(schemas.file(""), nullptr);
  const std::string path = folder.write("s.xsd", "<s/>");
  const auto first = schemas.file(path);
  EXPECT_EQ(schemas.file(path), first);
  folder.write("s.xsd", "<s></s>");
  const auto second = schemas.file(path);
  EXPECT_NE(second, first);
  const DocumentSchemas::Hold hold(schemas);
  EXPECT_EQ(schemas.file(path), second);
  folder.write("s.xsd", "<s>  </s>");
  EXPECT_EQ(schemas.file(path), second);
}

TEST_F(SchemaReaderTest, ADefaultValueTouchesNoFlagAndNoStructure) {
  const struct {
    tyType type;
    Value expected;
  } cases[] = {
      {tyType::String, std::string("Not Assigned")},
      {tyType::Integer, std::int16_t{0}},
      {tyType::Date, std::string("01/01/2001")},
      {tyType::Bool, false},
      {tyType::SetOfStrings, StringList{"Not Assigned"}},
      {tyType::Real, 0.0},
      {tyType::CloseList, std::string("b")},
      {tyType::ChunkTime, std::string("was")},
      {tyType::WordList, std::string("was")},
      {tyType::SetOfGUIDs, std::string("was")},
      {tyType::Unknow, std::string("was")},
  };
  lists_.Add({"L", {"b", "a"}});
  for (const auto& one : cases) {
    Fields fields;
    SchemaElement& field = fields.Add(one.type, "L", "", "was", "", false, false, false, false);
    field.Init(app, lists_);
    EXPECT_EQ(field.vContent(), one.expected) << field.strType();
    EXPECT_FALSE(field.bValid() || field.bChanged());
  }
  EXPECT_THROW(lists_.Add({"L", {"c"}}), RunTimeError);
}

}  // namespace
}  // namespace velra
