#include "schema/SchemaReader.h"

#include <gtest/gtest.h>

#include "schema/CloseList.h"
#include "schema/SchemaElement.h"
#include "support/TestApplication.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

/// "name:type", with "+readonly", "+ignore" and "#comment" where they are set.
std::string described(const DeclarationRef& declaration) {
  const SchemaElement field(declaration);
  std::string text = field.strName() + ":" + field.strType();
  if (field.bReadOnly()) text += "+readonly";
  if (field.bIgnore()) text += "+ignore";
  return field.strComment().empty() ? text : text + "#" + field.strComment();
}

class SchemaReaderTest : public ::testing::Test, protected test::TestApplication {
 protected:
  /// Reads class C out of top-level declarations.
  ClassDeclaration read(const std::string& declarations) {
    const std::string path = folder.write(
        "s.xsd", "<x:schema xmlns:x='urn:s' xmlns:y='urn:t'>" + declarations + "</x:schema>");
    return SchemaFile(app, path).classDeclaration("C", lists_);
  }
  static std::string classOf(const std::string& content) {
    return "<x:element name='C'><x:complexType>" + content + "</x:complexType></x:element>";
  }
  static std::string field(const std::string& name, const std::string& type,
                           const std::string& inside = "") {
    return "<x:element name='" + name + "' type='" + type + "'>" + inside + "</x:element>";
  }
  static std::string sequence(const std::string& fields) {
    return "<x:sequence>" + fields + "</x:sequence>";
  }
  static std::string extension(const std::string& inside, const std::string& base = "B") {
    return "<x:complexContent><x:extension base='" + base + "'>" + inside +
           "</x:extension></x:complexContent>";
  }
  static std::string note(const std::string& word) {
    return "<x:annotation><x:appinfo>" + word + "</x:appinfo></x:annotation>";
  }

  CloseLists lists_;
};

TEST_F(SchemaReaderTest, ReadsTheDialect) {
  const std::string base =
      "<x:complexType name='B'>" + sequence(field("One", "x:string")) + "</x:complexType>";
  const std::string list =
      "<x:simpleType name='L'><x:restriction><x:enumeration value='b'/><x:enumeration value='a'/>"
      "</x:restriction></x:simpleType>";
  const struct {
    const char* what;
    std::string declarations;
    Texts fields;
  } cases[] = {
      {"every type",
       classOf("<x:all>" + field("a", "x:string") + field("b", "x:integer") + field("c", "x:date") +
               field("d", "x:boolean") + field("e", "x:float") + field("f", "SetOfStrings") +
               field("g", "SetOfGUIDs") + field("h", "ChunkType") + field("i", "SetOfWords") +
               field("j", "L") + field("k", "x:double") + "</x:all>") +
           list,
       {"a:String", "b:Integer", "c:Date", "d:Bool", "e:Real", "f:SetOfStrings", "g:SetOfGUIDs",
        "h:ChunkTime", "i:WordList", "j:L (CloseList)", "k:Unknow+ignore"}},
      {"flags and comment",
       classOf(sequence(field("a", "x:string", note("ReadOnly")) +
                        field("b", "x:string", note(" readonly")) +
                        field("c", "x:string", note("ignore") + note("x") + note("readonly")) +
                        field("VersionGUID", "x:string") + field("Guid", "x:string"))),
       {"a:String+readonly#ReadOnly", "b:String# readonly",
        "c:String+readonly+ignore#ignorexreadonly", "VersionGUID:String+readonly", "Guid:String"}},
      {"comments and blanks between fields",
       classOf(sequence("\n <!-- x --> " + field("a", "x:string") + "\n")),
       {"a:String"}},
      {"base fields first",
       classOf(extension(sequence(field("Two", "x:date")))) + base,
       {"One:String", "Two:Date"}},
      {"prefix of the sequence decides",
       classOf("<y:sequence>" + field("a", "x:string") + field("b", "y:string") + "</y:sequence>"),
       {"a:Unknow+ignore", "b:String"}},
      {"no prefix needs a colon",
       classOf("<sequence>" + field("a", "string") + field("b", ":string") + "</sequence>"),
       {"a:Unknow+ignore", "b:String"}},
      {"the last content model counts",
       classOf(sequence(field("a", "x:string")) + sequence(field("b", "x:string"))),
       {"b:String"}},
      {"the first declaration of the name counts",
       classOf(sequence(field("a", "x:string"))) + classOf(sequence(field("b", "x:string"))),
       {"a:String"}},
      {"lists that are none",
       classOf(sequence(field("a", "B") + field("b", "E") + field("c", "N"))) + base +
           "<x:simpleType name='E'><x:restriction/></x:simpleType><x:simpleType name='N'/>",
       {"a:Unknow+ignore", "b:Unknow+ignore", "c:Unknow+ignore"}},
      {"names and attributes of any prefix",
       "<anything y:name='C'><complexType><all><f y:name='a' y:type=':date'/></all></complexType>"
       "</anything>",
       {"a:Date"}},
      {"one name twice",
       classOf(sequence(field("a", "x:string") + field("a", "x:date"))),
       {"a:String", "a:Date"}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    const ClassDeclaration declaration = read(one.declarations);
    EXPECT_EQ(declaration.message, "");
    Texts fields;
    for (const auto& each : declaration.fields) fields.push_back(described(each));
    EXPECT_EQ(fields, one.fields);
  }
  ASSERT_TRUE(lists_.find("L"));
  EXPECT_EQ(lists_.find("L")->colItems, (Texts{"b", "a"}));
  EXPECT_EQ(lists_.Count(), 1U);
}

TEST_F(SchemaReaderTest, TellsWhyAClassCannotBeRead) {
  const std::string one = sequence(field("a", "x:string"));
  const auto baseType = [](const std::string& content) {
    return "<x:complexType name='B'>" + content + "</x:complexType>";
  };
  const std::string noFlow =
      " type definition: complexType must have a all, sequence, or a complexContent child element!";
  const std::string unnamed = " has no Type and/or Name attribute assigned";
  const struct {
    std::string declarations;
    std::string message;
  } cases[] = {
      {"<x:element name='D'/>", "The schema does not provide any definition of the type: C"},
      {"<x:element name='C'/>", "C: type definition must have a complexType child element!"},
      {classOf("<x:choice/>"), "C:" + noFlow},
      {classOf(sequence(" <!-- none --> ")), "C: all or sequence without child elements!"},
      {classOf(sequence(field("a", "x:string") + field("", "x:string"))),
       "C: the schema element 2" + unnamed},
      {classOf(sequence("<x:annotation/>" + field("a", "x:string"))),
       "C: the schema element 1" + unnamed},
      {classOf("<x:complexContent/>"), "C:" + noFlow},
      {classOf(extension(one, "x:B")) + baseType(one),
       "The schema does not provide any definition of the type: x:B"},
      {classOf(extension(one)) + baseType(extension(one, "A")), "B:" + noFlow},
      {classOf(extension(one)) + baseType(sequence("")),
       "B: all or sequence without child elements!"},
      {classOf(extension(one)) + baseType(sequence(field("a", ""))),
       "B: the schema element 1" + unnamed},
      {classOf(extension("<x:choice/>")) + baseType(one),
       "C:The complexContent must contain a sequence or all element."},
      {classOf(extension(sequence(field("b", "x:string") + field("c", "")))) + baseType(one),
       "C: the schema element 3" + unnamed},
      // Something behind the complexContent takes away its meaning.
      {classOf(extension(one) + "<x:attribute name='z'/>") + baseType(one),
       "C: the schema element 1" + unnamed},
      {classOf(extension(one) + "<!-- end -->") + baseType(one),
       "C: the schema element 1" + unnamed},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(read(each.declarations).message, each.message) << each.declarations;
  }
}

TEST_F(SchemaReaderTest, ASecondReadingOfAListIsSpared) {
  const auto listOf = [](const std::string& item) {
    return "<x:simpleType name='L'><x:restriction><x:enumeration value='" + item +
           "'/></x:restriction></x:simpleType>";
  };
  const std::string own = classOf(sequence(field("a", "L")));
  read(own + listOf("first"));
  read(own + listOf("second"));
  EXPECT_EQ(lists_.find("L")->colItems, Texts{"first"});
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
    SchemaElement field;
    field.setTyType(one.type);
    field.setStrCloseList("L");
    field.setVContent(std::string("was"));
    field.Init(app, lists_);
    EXPECT_EQ(field.vContent(), one.expected) << field.strType();
    EXPECT_FALSE(field.bValid() || field.bChanged());
  }
  EXPECT_THROW(lists_.Add({"L", {"c"}}), RunTimeError);
}

}  // namespace
}  // namespace velra
