// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/NaroThematicKeywords.h"

#include <gtest/gtest.h>

#include <set>

#include "base/RunTimeError.h"
#include "support/ShownBoxes.h"
#include "support/TestApplication.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class VocabularyTest : public ::testing::Test, protected test::TestApplication {
 protected:
  bool load(const std::string& content) {
    return loadFile("<NaroThematicKeywords>" + content + "</NaroThematicKeywords>");
  }
  bool loadFile(const std::string& bytes) {
    return vocabulary_.bSetFromXMLFile(app, folder.write("ThematicKeywords.xml", bytes));
  }

  NaroThematicKeywords vocabulary_;
};

TEST_F(VocabularyTest, ReadsThreeLevelsInTheOrderOfTheFile) {
  ASSERT_TRUE(
      load("text <!-- comment --><?pi pi?><Other/>"
           "<Theme English='T1' Italian='I' German='G' French='F' Other='O'>\n"
           "  <Subtheme English='S1'><Keyword English='K1' Dutch='D'/>"
           "<Keyword English='K2'>its <Content/></Keyword></Subtheme>\n"
           "  <Subtheme English='S2'/>\n"
           "</Theme><Theme English='T2'/>"));
  EXPECT_TRUE(ui.shown.empty());
  ASSERT_EQ(vocabulary_.colThemes().size(), 2U);
  const Theme& theme = *vocabulary_.colThemes()[0];
  EXPECT_TRUE(vocabulary_.colThemes()[1]->colSubthemes().empty());
  ASSERT_EQ(theme.colSubthemes().size(), 2U);
  ASSERT_EQ(theme.colSubthemes()[0]->colKeywords().size(), 2U);
  EXPECT_EQ(theme.colSubthemes()[0]->colKeywords()[1]->strEnglish, "K2");
  EXPECT_EQ(theme.colSubthemes()[0]->colKeywords()[0]->strLocalLang(2), "D");
  const struct {
    std::int32_t language;
    const char* name;
  } names[] = {{0, "T1"}, {1, "I"},  {2, "T1"},  {3, "G"},
               {4, "F"},  {5, "T1"}, {-1, "T1"}, {6, "T1"}};
  for (const auto& one : names) EXPECT_EQ(theme.strLocalLang(one.language), one.name);
}

TEST_F(VocabularyTest, SaysWhatIsWrongWithAFile) {
  const std::string theme = "<Theme English='T'>";
  const struct {
    std::string content;
    int message;
  } cases[] = {
      {"<Theme/>", 1170},
      {"<Theme English=''/>", 1170},
      {"<Theme english='T'/>", 1170},
      {theme + "<Subtheme Italian='S'/></Theme>", 1168},
      {theme + "<Other English='S'/></Theme>", 1172},
      {theme + "<Keyword English='K'/></Theme>", 1172},
      {theme + "<Subtheme English='S'><Keyword/></Subtheme></Theme>", 1173},
      {theme + "<Subtheme English='S'><Theme/></Subtheme></Theme>", 1171},
      {theme + "<Subtheme><Other English='K'/></Subtheme></Theme>", 1171},  // found while reading
      {"<Theme><Subtheme English='S'/><Other/></Theme>", 1172},
  };
  for (const auto& one : cases) {
    EXPECT_FALSE(load(one.content)) << one.content;
    EXPECT_EQ(ui.takeShown(), Texts{"plain: " + app.messages.text(one.message)}) << one.content;
  }
  EXPECT_FALSE(loadFile("<Other/>"));
  EXPECT_EQ(ui.takeShown(), Texts{"plain: " + app.messages.text(1169)});
}

TEST_F(VocabularyTest, PutsTheReasonBehindTheMessage) {
  const std::string paths[] = {
      "", folder / "missing.xml", folder.write("open.xml", "<NaroThematicKeywords>"),
      folder.write("invalid.xml",
                   "<!DOCTYPE NaroThematicKeywords [<!ELEMENT NaroThematicKeywords EMPTY>]>"
                   "<NaroThematicKeywords><Theme English='T'/></NaroThematicKeywords>")};
  for (const std::string& path : paths) {
    EXPECT_FALSE(vocabulary_.bSetFromXMLFile(app, path)) << path;
    const Texts shown = ui.takeShown();
    EXPECT_TRUE(
        test::sameBoxes(shown, {"plain: Error during ThematicKeywords.xml loading ..."}, ""))
        << path << ::testing::PrintToString(shown);
  }
}

TEST_F(VocabularyTest, OnlyElementsMayStandBelowAThemeOrSubtheme) {
  for (const char* child : {"text", "<!-- comment -->", "<![CDATA[ ]]>", "<?pi pi?>"}) {
    const std::string inTheme = "<Theme English='T'>" + std::string(child) + "</Theme>";
    EXPECT_THROW(load(inTheme), RunTimeError) << child;
    const std::string inSubtheme =
        "<Theme English='T'><Subtheme English='S'>" + std::string(child) + "</Subtheme></Theme>";
    EXPECT_THROW(load(inSubtheme), RunTimeError) << child;
  }
  EXPECT_TRUE(ui.shown.empty());
}

TEST_F(VocabularyTest, TheFileThatComesWithTheProgramIsComplete) {
  ASSERT_TRUE(vocabulary_.bSetFromXMLFile(app, VELRA_SOURCE_DIR "/data/ThematicKeywords.xml"));
  std::size_t subthemes = 0;
  std::size_t keywords = 0;
  std::set<std::string> themeNames;
  const auto check = [](const VocabularyEntry& entry) {
    for (const std::string* name :
         {&entry.strItalian, &entry.strDutch, &entry.strGerman, &entry.strFrench}) {
      EXPECT_NE(*name, "") << entry.strEnglish;
    }
  };
  for (const auto& theme : vocabulary_.colThemes()) {
    check(*theme);
    EXPECT_TRUE(themeNames.insert(theme->strEnglish).second) << theme->strEnglish;
    subthemes += theme->colSubthemes().size();
    for (const auto& subtheme : theme->colSubthemes()) {
      check(*subtheme);
      EXPECT_FALSE(subtheme->colKeywords().empty()) << subtheme->strEnglish;
      keywords += subtheme->colKeywords().size();
      for (const auto& keyword : subtheme->colKeywords()) check(*keyword);
    }
  }
  EXPECT_GE(themeNames.size(), 8U);
  EXPECT_GE(subthemes, 30U);
  EXPECT_GE(keywords, 150U);
}

}  // namespace
}  // namespace velra
