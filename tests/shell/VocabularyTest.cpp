// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "forms/FieldBox.h"
#include "forms/VocabularyNames.h"
#include "shell/Start.h"
#include "support/ErrorOf.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class ProgramVocabularyTest : public ::testing::Test {
 protected:
  std::string message(int id) const { return "plain: " + program_.app.messages.text(id); }

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
    };
    program_.click(TreeId::tvwMainTree, *program_.document());
    program_.mainForm.mnuEditMetadata();
    return names;
  }

  test::Program program_;
};

TEST_F(ProgramVocabularyTest, AnEntryOfTheMenuGivesTheFormItsLanguage) {
  program_.mainForm.OpenFile(program_.sample());
  const auto& themes = program_.app.objNaroThematicKeywords->colThemes();
  const std::string italian = localName(themes, "Sea and Coast", 1);
  ASSERT_NE(italian, "Sea and Coast");
  const struct {
    std::int32_t language;
    std::string theme;
    Texts boxes;
  } cases[] = {{0, "Combo1 Sea and Coast", {}},
               {5, "Text1 Sea and Coast", {message(1164)}},
               {1, "Combo1 " + italian, {}}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.language);
    program_.mainForm.setLanguage(one.language);
    EXPECT_EQ(program_.mainForm.menuState().language, one.language);
    EXPECT_EQ(program_.ui.takeShown(), one.boxes);
    program_.mainForm.setLanguage(one.language);  // ticked already
    EXPECT_TRUE(program_.ui.shown.empty());
    EXPECT_EQ(controls().at(0), one.theme);
  }
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
  program_.settings.write(ApplicationModule::kMachineSection, "ThematicKeywordsPath",
                          std::string());
  LoadThematicKeywords(program_.app);
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
  EXPECT_EQ(test::errorOf([&] { program_.mainForm.mnuFileNew(); }), kNoObject);
}

}  // namespace
}  // namespace velra
