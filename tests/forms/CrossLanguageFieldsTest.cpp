// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/CrossLanguageFields.h"

#include <gtest/gtest.h>

#include "forms/FormPresenter.h"
#include "forms/LoadedForm.h"
#include "forms/MetadataKinds.h"
#include "forms/ctlSetOfStringCL.h"
#include "support/ErrorOf.h"
#include "support/FormObject.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kAskTheme =
    "yes-no: This will reset the fields Subthemes and ThematicKeywords, would like to continue?";
constexpr const char* kAskSubtheme =
    "yes-no: This will reset the ThematicKeywords, would like to continue?";

class CrossLanguageTest : public ::testing::Test {
 protected:
  static constexpr std::int32_t kItalian = 1;

  test::TestApplication application_;
  ApplicationModule& app_ = application_.app;
  std::shared_ptr<test::FormObject> object_;
  TabScroll scroll_;
  std::unique_ptr<LoadedForm> form_;

  CrossLanguageTest() {
    app_.objNaroThematicKeywords = std::make_shared<NaroThematicKeywords>();
    EXPECT_TRUE(app_.objNaroThematicKeywords->bSetFromXMLFile(
        app_, VELRA_SOURCE_DIR "/tests/data/vocabulary.xml"));
    app_.iLanguage = kItalian;
    document("Art", "Dance", StringList{"Ballet", "Tango"});
  }

  void document(Value theme, Value subtheme, Value keywords) {
    object_ = std::make_shared<test::FormObject>(app_, ObjectKind::AVDocument, "Title");
    object_->add(tyType::String, "Title", "t");
    object_->add(tyType::String, "Themes", std::move(theme));
    object_->add(tyType::String, "Subthemes", std::move(subtheme));
    object_->add(tyType::SetOfStrings, "ThematicKeywords", std::move(keywords));
  }

  void load() {
    form_ = std::make_unique<LoadedForm>(app_, *metadataKindOf(ObjectKind::AVDocument), object_,
                                         scroll_);
    form_->Form_Load();
  }
  int errorOfLoading() {
    return test::errorOf([this] { load(); });
  }

  FieldBox& box(std::size_t number) { return form_->fields().colControls()[number - 1]; }
  std::string text(std::size_t number) { return toText(box(number).value); }
  void choose(std::size_t number, const std::string& text) {
    box(number).value = text;
    form_->crossLanguageFields()->Combo1_Click(box(number));
  }
  Value stored(std::size_t position) { return object_->secol().Item(position).vContent(); }
  Texts rows() {
    Texts texts;
    for (std::int16_t i = 1; i <= box(4).rows->Count(); ++i) {
      texts.push_back(box(4).rows->rowText(i));
    }
    return texts;
  }
};

TEST_F(CrossLanguageTest, ShowsTheLanguageAndStoresEnglish) {
  load();
  EXPECT_EQ(box(2).controlName(), "Combo1_1");
  EXPECT_EQ(text(2), "Arte");
  EXPECT_EQ(box(2).items, (Texts{"Arte", "Guerra", "Amore"}));
  EXPECT_EQ(text(3), "Danza");
  EXPECT_EQ(box(3).items, (Texts{"Danza", "Musica"}));
  EXPECT_EQ(box(4).controlName(), "ctlSetOfStringCL1");
  EXPECT_EQ(box(4).rows->choices(), (Texts{"Balletto", "Tango"}));  // no Italian: the English word
  EXPECT_EQ(rows(), (Texts{"Balletto", "Tango"}));
  form_->OKButt_Click();
  for (const std::size_t position : {1u, 2u, 3u, 4u}) {
    EXPECT_EQ(object_->secol().Item(position).bChanged(), position > 1);
  }
  EXPECT_EQ(stored(2), Value("Art"));
  EXPECT_EQ(stored(3), Value("Dance"));
  EXPECT_EQ(stored(4), Value(StringList{"Ballet", "Tango"}));
}

TEST_F(CrossLanguageTest, LoadsOnlyAPathThroughTheVocabulary) {
  struct Row {
    Value theme;
    Value subtheme;
    Value keywords;
    int error;
  };
  const Row rows[] = {
      {"Art", "Dance", StringList{"Tango"}, 0},
      {"Art", "Dance", StringList{}, 0},
      {"Art", "Dance", StringList{"Tango", "Opera"}, kFormUnloaded},  // one of another subtheme
      {"Art", "Dance", StringList{"Balletto"}, kFormUnloaded},        // only English is stored
      {"Art", "Peace", StringList{"Treaty"}, kFormUnloaded},
      {"Unknown", "Dance", StringList{"Tango"}, kFormUnloaded},
      {Value(), "Dance", StringList{"Tango"}, kFormUnloaded},
      {"Art", "Dance", Value(), kNoObject},
  };
  for (const Row& row : rows) {
    document(row.theme, row.subtheme, row.keywords);
    EXPECT_EQ(errorOfLoading(), row.error) << &row - rows;
    const Texts told = row.error == kFormUnloaded
                           ? Texts{"plain: The Cross Language fields are inconsistent"}
                           : Texts{};
    EXPECT_EQ(application_.ui.takeShown(), told) << &row - rows;
  }
}

TEST_F(CrossLanguageTest, LoadsNoFieldsOutOfOrder) {
  object_ = std::make_shared<test::FormObject>(app_, ObjectKind::AVDocument, "Title");
  object_->add(tyType::String, "Title", "t");
  EXPECT_EQ(errorOfLoading(), 0);  // none of the three: nothing to contradict
  object_->add(tyType::String, "Subthemes", "Dance");
  object_->add(tyType::String, "Themes", "Art");
  EXPECT_EQ(errorOfLoading(), kFormUnloaded);
}

TEST_F(CrossLanguageTest, AnotherThemeResetsWhatDependsOnIt) {
  load();
  int told = 0;
  box(3).onChange = [&] { ++told; };
  application_.ui.yesNo = {true};
  choose(2, "Guerra");
  EXPECT_EQ(application_.ui.takeShown(), Texts{kAskTheme});  // and no second question
  EXPECT_EQ(told, 1);
  EXPECT_EQ(text(3), "Pace");
  EXPECT_EQ(box(3).items, Texts{"Pace"});
  EXPECT_EQ(box(4).rows->choices(), Texts{"Trattato"});
  EXPECT_EQ(rows(), Texts{});
  box(4).rows->Command1_Click();
  EXPECT_EQ(rows(), Texts{"Trattato"});
  choose(3, "Pace");  // the subtheme in force already
  choose(2, "Guerra");
  EXPECT_TRUE(application_.ui.shown.empty());
  form_->OKButt_Click();
  EXPECT_EQ(stored(2), Value("War"));
  EXPECT_EQ(stored(3), Value("Peace"));
  EXPECT_EQ(stored(4), Value(StringList{"Treaty"}));
}

TEST_F(CrossLanguageTest, AThemeResetLeavesNothingOfWhatWasBelow) {
  load();
  application_.ui.yesNo = {true, true};
  choose(2, "Amore");  // it has no subthemes
  EXPECT_EQ(text(3), "");
  EXPECT_EQ(box(3).items, Texts{});
  EXPECT_EQ(box(4).rows->choices(), Texts{});
  choose(2, "Guerra");
  form_->OKButt_Click();
  EXPECT_FALSE(object_->secol().Item(4).bValid()) << "no keyword was chosen";
  EXPECT_EQ(errorOfLoading(), kNoObject);
}

TEST_F(CrossLanguageTest, AThemeResetPassesOverAFieldThatIsNotAssigned) {
  object_->secol().Item(3).setBValid(false);
  load();
  application_.ui.yesNo = {true};
  choose(2, "Guerra");
  EXPECT_EQ(box(3).rows->choices(), Texts{"Trattato"});
}

TEST_F(CrossLanguageTest, AnotherSubthemeResetsTheKeywordsAndNoPutsTheOldOneBack) {
  load();
  choose(2, "Guerra");
  choose(3, "Musica");
  EXPECT_EQ(application_.ui.takeShown(), (Texts{kAskTheme, kAskSubtheme}));
  EXPECT_EQ(text(2), "Arte");
  EXPECT_EQ(text(3), "Danza");
  EXPECT_EQ(rows(), (Texts{"Balletto", "Tango"}));
  application_.ui.yesNo = {true};
  choose(3, "Musica");
  EXPECT_EQ(application_.ui.takeShown(), Texts{kAskSubtheme});
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(box(4).rows->choices(), Texts{"Opera"});
  EXPECT_EQ(text(2), "Arte");
}

TEST_F(CrossLanguageTest, WordsOutsideTheVocabulary) {
  ctlSetOfStringCL control;
  const auto& keywords =
      app_.objNaroThematicKeywords->colThemes()[0]->colSubthemes()[0]->colKeywords();
  control.AssignItems(keywords, kItalian);
  control.Init(2);
  control.setStrng(1, kItalian, "Unknown");
  control.setStrng(2, kItalian, "Ballet");
  EXPECT_EQ(control.rowText(1), "");
  EXPECT_EQ(control.Strng(1, kItalian), "");
  EXPECT_EQ(control.Strng(2, kItalian), "Ballet");
  control.AssignItems(keywords, kItalian);
  control.Init(2);  // was used already
  EXPECT_EQ(control.Count(), 0);
}

}  // namespace
}  // namespace velra
