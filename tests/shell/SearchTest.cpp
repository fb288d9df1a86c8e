// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "Program.h"
#include "objects/LadderObject.h"
#include "support/ErrorOf.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class SearchTest : public ::testing::Test {
 protected:
  /// Find with these values; the rows as "type|title|founds|icon".
  Texts find(const std::string& text, bool matchCase = false, bool singleWord = false) {
    Texts rows;
    program_.presenter.onSearch = [=](SearchDialog& dialog) {
      dialog.OKButt_Click(text, matchCase, singleWord);
    };
    program_.presenter.onResults = [&](SearchResultDialog& dialog) {
      for (const auto& row : dialog.rows()) {
        rows.push_back(row.type + "|" + row.title + "|" + std::to_string(row.founds) + "|" +
                       std::filesystem::path(row.smallIcon).filename().string());
      }
      if (onResults_) onResults_(dialog);
      dialog.OKButton_Click();
    };
    program_.mainForm.mnuFileFind();
    return rows;
  }

  test::Program program_;
  std::function<void(SearchResultDialog&)> onResults_;
};

TEST_F(SearchTest, FindsTextsSetsAndWordsInTheOrderOfTheObjects) {
  program_.mainForm.OpenFile(program_.sample());
  const struct {
    const char* text;
    bool matchCase;
    Texts rows;
  } cases[] = {
      {"reading-room", false, {"Media|AVI reading-room copy|1|Media"}},
      {"READING-ROOM", true, {}},
      {"Fresnel", true, {"AVDocument|Skarholm Light|1|AVDocument"}},  // a member of a set
      {"Documentary", true, {"AVDocument|Skarholm Light|1|AVDocument"}},
      {"One hundred and twelve steps",
       false,
       {"Video|One hundred and twelve steps|1|lighthouse_video4.xml"}},
      {"Picture of Skarholm", false, {"Video|Picture of Skarholm Light|1|Video"}},
      {"no such words", false, {}},
  };
  for (const auto& one : cases) EXPECT_EQ(find(one.text, one.matchCase), one.rows) << one.text;
  EXPECT_EQ(find("FRESNEL"), find("fresnel"));
  EXPECT_EQ(find("resne", false, true).size(), 1U);  // whole words are not told apart
}

TEST_F(SearchTest, AnEmptyTextHitsEveryObjectAndNoMediaObject) {
  program_.mainForm.OpenFile(program_.sample());
  const std::size_t objects = program_.document()->collObjects().described().size();
  const int signs = program_.ui.busySigns;
  const Texts rows = find("");
  EXPECT_EQ(program_.ui.busySigns, signs + 1);
  EXPECT_EQ(rows.size(), objects);
  for (const std::string& row : rows) EXPECT_NE(row.rfind("MediaObject", 0), 0U);
}

TEST_F(SearchTest, ARowOpensTheFormOverTheList) {
  program_.mainForm.OpenFile(program_.sample());
  const FormOwner* list = nullptr;
  onResults_ = [&](SearchResultDialog& dialog) {
    list = &dialog;
    const std::size_t before = program_.expressionForms.size();
    dialog.ListView1_Click({});
    EXPECT_EQ(program_.expressionForms.size(), before);
    dialog.ListView1_Click({1});
    EXPECT_THROW(dialog.ListView1_Click({dialog.rows().size() + 1}), RunTimeError);
  };
  EXPECT_EQ(find("hundred and twelve").size(), 1U);
  EXPECT_EQ(program_.expressionForms, Texts{"One hundred and twelve steps"});
  EXPECT_EQ(find("reading-room").size(), 1U);
  EXPECT_EQ(program_.presenter.captions.size(), 1U);
  EXPECT_EQ(program_.presenter.lastOwner, list);
}

TEST_F(SearchTest, ValuesComeBackUntilTheFirstCancelEndsSearching) {
  program_.mainForm.OpenFile(program_.sample());
  find("steps", true, true);
  const int signs = program_.ui.busySigns;
  program_.presenter.onSearch = [](SearchDialog& dialog) {
    EXPECT_EQ(dialog.strText(), "steps");
    EXPECT_TRUE(dialog.bMatchCase());
    EXPECT_TRUE(dialog.bSingleWord());
    dialog.CancelButt_Click();
  };
  program_.presenter.takeDialogs();
  program_.mainForm.mnuFileFind();
  EXPECT_EQ(program_.presenter.takeDialogs(), Texts{"SearchDialog"});
  EXPECT_EQ(program_.ui.busySigns, signs);
  // OK does not take it back.
  EXPECT_TRUE(find("log").empty());
  EXPECT_EQ(program_.presenter.takeDialogs(), Texts{"SearchDialog"});
}

TEST_F(SearchTest, WithoutADocumentItEndsInARunTimeError) {
  EXPECT_EQ(test::errorOf([&] { find("steps"); }), kNoObject);
  EXPECT_EQ(program_.presenter.takeDialogs(), Texts{"SearchDialog"});
}

}  // namespace
}  // namespace velra
