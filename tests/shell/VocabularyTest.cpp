#include <gtest/gtest.h>

#include <filesystem>

#include "Program.h"
#include "base/RunTimeError.h"
#include "forms/FieldBox.h"
#include "shell/Start.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class ProgramVocabularyTest : public ::testing::Test {
 protected:
  std::string message(int id) const { return "plain: " + program_.app.LoadResString(id); }

  void load(const std::string& vocabulary) {
    program_.settings.write(ApplicationModule::kMachineSection, "ThematicKeywordsPath", vocabulary);
    program_.app.objNaroThematicKeywords.reset();
    LoadThematicKeywords(program_.app);
  }
  /// "Edit Metadata" on the document's node. The names of the controls with what they show.
  Texts controls() {
    Texts names;
    program_.presenter.whileShown = [&](LoadedForm& form) {
      for (const FieldBox& box : form.fields().colControls()) {
        if (box.strName != "Themes" && box.strName != "Subthemes" &&
            box.strName != "ThematicKeywords") {
          continue;
        }
        const std::string text = box.rows ? box.rows->rowText(1) : toText(box.value);
        const std::string name = box.controlName();
        names.push_back(name.substr(0, name.find('_')) + " " + text);
      }
      if (onForm_) onForm_(form);
    };
    program_.click(TreeId::tvwMainTree, *program_.document());
    program_.mainForm.mnuEditMetadata();
    return names;
  }

  test::Program program_;
  std::function<void(LoadedForm&)> onForm_;
};

TEST_F(ProgramVocabularyTest, EachEntryOfTheMenuGivesTheFormItsLanguage) {
  program_.mainForm.OpenFile(program_.sample());
  const struct {
    std::int32_t language;
    Texts controls;
    Texts boxes;
  } cases[] = {
      {0,
       {"Combo1 Sea and Coast", "Combo1 Lighthouses and Navigation",
        "ctlSetOfStringCL1 Lighthouses"},
       {}},
      {5,
       {"Text1 Sea and Coast", "Text1 Lighthouses and Navigation", "ctlSetOfString1 Lighthouses"},
       {message(1164)}},
      {1, {}, {}},
      {2, {}, {}},
      {3, {}, {}},
      {4, {}, {}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.language);
    program_.mainForm.setLanguage(one.language);
    EXPECT_EQ(program_.app.iLanguage, one.language);
    EXPECT_EQ(program_.mainForm.menuState().language, one.language);
    EXPECT_EQ(program_.ui.takeShown(), one.boxes);
    program_.mainForm.setLanguage(one.language);  // ticked already
    EXPECT_TRUE(program_.ui.shown.empty());
    const Texts shown = controls();
    ASSERT_EQ(shown.size(), 3U);
    if (!one.controls.empty()) {
      EXPECT_EQ(shown, one.controls);
    }
    const auto& theme = *program_.app.objNaroThematicKeywords->colThemes()[1];
    if (one.language < 5 && theme.strEnglish == "Sea and Coast") {
      EXPECT_EQ(shown[0], "Combo1 " + theme.strLocalLang(one.language));
    }
  }
}

TEST_F(ProgramVocabularyTest, FilesHoldEnglishWhateverTheLanguage) {
  program_.mainForm.OpenFile(program_.sample());
  const std::string before = program_.read("lighthouse.xml");
  program_.mainForm.setLanguage(3);
  onForm_ = [](LoadedForm& form) { form.OKButt_Click(); };
  EXPECT_EQ(controls().size(), 3U);
  EXPECT_TRUE(program_.document()->bChanged());
  program_.mainForm.mnuFileSave();
  const auto part = [](const std::string& xml) {
    const std::size_t from = xml.find("<Themes>");
    return xml.substr(from, xml.find("<FreeKeywords>") - from);
  };
  EXPECT_EQ(part(program_.read("lighthouse.xml")), part(before));
}

TEST_F(ProgramVocabularyTest, InconsistentFieldsShowAMessageAndNoForm) {
  program_.mainForm.OpenFile(program_.sample());
  std::string xml = program_.read("lighthouse.xml");
  xml.replace(xml.find("Sea and Coast"), 13, "No such theme");
  program_.folder.write("sample/lighthouse.xml", xml);
  program_.mainForm.OpenFile(program_.sample());
  EXPECT_TRUE(controls().empty());
  EXPECT_EQ(program_.ui.takeShown(), Texts{message(1148)});
  EXPECT_TRUE(program_.presenter.captions.empty());
  program_.mainForm.setLanguage(5);
  EXPECT_EQ(controls().size(), 3U);
}

TEST_F(ProgramVocabularyTest, TheThreeUsesOfAMissingVocabulary) {
  load("");
  EXPECT_EQ(program_.app.objNaroThematicKeywords, nullptr);
  EXPECT_EQ(program_.ui.takeShown().size(), 2U);
  program_.mainForm.OpenFile(program_.sample());

  // The trap of the document's form tells of it, and no form opens.
  EXPECT_TRUE(controls().empty());
  EXPECT_EQ(program_.ui.takeShown(), Texts{"critical: There is no object to work on"});
  EXPECT_TRUE(program_.presenter.captions.empty());

  // Switched off, the vocabulary is not touched.
  program_.mainForm.setLanguage(5);
  EXPECT_EQ(program_.ui.takeShown(), Texts{message(1164)});
  EXPECT_EQ(controls().size(), 3U);
  EXPECT_TRUE(program_.ui.shown.empty());

  // A new document needs it in any language.
  try {
    program_.mainForm.mnuFileNew();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), kNoObject);
  }
}

TEST_F(ProgramVocabularyTest, TenThousandKeywordsWithMarkupAndRightToLeftScript) {
  const std::string shalom = "\u05e9\u05dc\u05d5\u05dd";
  std::string xml = "<NaroThematicKeywords><Theme English='Sea and Coast' Italian='&lt;b>" +
                    shalom + "&amp;amp;&lt;/b>'><Subtheme English='Lighthouses and Navigation'>";
  for (const char* own : {"Lighthouses", "Lighthouse Keepers", "Fog Signals"}) {
    xml += "<Keyword English='" + std::string(own) + "'/>";
  }
  for (int i = 0; i < 10000; ++i) {
    xml += "<Keyword English='K" + std::to_string(i) + "' Italian='" + shalom + "&lt;" +
           std::to_string(i) + ">'/>";
  }
  xml += "</Subtheme></Theme></NaroThematicKeywords>";
  load(program_.folder.write("large.xml", xml));
  EXPECT_TRUE(program_.ui.shown.empty());
  program_.mainForm.OpenFile(program_.sample());
  program_.mainForm.setLanguage(1);
  onForm_ = [&](LoadedForm& form) {
    for (FieldBox& box : form.fields().colControls()) {
      if (box.strName == "ThematicKeywords") {
        EXPECT_EQ(box.rows->rowText(1), "Lighthouses");
      }
    }
    form.OKButt_Click();
  };
  EXPECT_EQ(controls().at(0), "Combo1 <b>" + shalom + "&amp;</b>");
  program_.mainForm.mnuFileSave();
  EXPECT_NE(program_.read("lighthouse.xml").find("<Themes>Sea and Coast</Themes>"),
            std::string::npos);
}

}  // namespace
}  // namespace velra
