// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/MetadataForm.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "forms/FormPresenter.h"
#include "forms/LoadedForm.h"
#include "forms/MetadataKinds.h"
#include "support/FormObject.h"

namespace velra {
namespace {

/// Does with a form what the test says while it shows.
class ScriptedPresenter : public FormPresenter {
 public:
  std::function<void(LoadedForm&)> act = [](LoadedForm&) {};
  int shown = 0;
  int closed = 0;

  void showForm(FormOwner&, LoadedForm& form) override {
    ++shown;
    form.onUnload = [this] { ++closed; };
    act(form);
  }
  void showSchemaDialog(FormOwner&, AVDocSchemaDialog&) override {}
};

class MetadataFormTest : public ::testing::Test {
 protected:
  test::TestApplication application_;
  test::RecordingMainWindow window_;
  ScriptedPresenter presenter_;

  MetadataFormTest() { application_.app.gMainForm = &window_; }
};

TEST_F(MetadataFormTest, EachKindRenamesByItsOwnField) {
  struct Row {
    ObjectKind edited;
    const char* formName;
    const char* titleField;
  };
  for (const Row& row : {Row{ObjectKind::Storage, "StorageForm", "Collocation"},
                         Row{ObjectKind::Media, "MediaForm", "Format"},
                         Row{ObjectKind::Version, "VersionForm", "VersionTitle"},
                         Row{ObjectKind::AVDocument, "frmAVDocForm", "Title"}}) {
    const MetadataKind* kind = metadataKindOf(row.edited);
    ASSERT_NE(kind, nullptr);
    EXPECT_EQ(kind->formName, row.formName);
    auto object = std::make_shared<test::FormObject>(application_.app, row.edited, row.titleField);
    object->add(tyType::String, row.titleField, "old");
    MetadataForm form(*kind, application_.app, presenter_);
    form.setObject(object);
    application_.app.iLanguage = ApplicationModule::kCrossLanguageOff;
    presenter_.act = [](LoadedForm& loaded) {
      EXPECT_EQ(loaded.caption(), "old");
      loaded.fields().colControls()[0].value = "new";
      loaded.OKButt_Click();
    };
    form.Show(window_);
    EXPECT_EQ(std::exchange(window_.titles, {}), std::vector<std::string>{"new"});
  }
  EXPECT_EQ(metadataKindOf(ObjectKind::Video), nullptr);
}

TEST_F(MetadataFormTest, IsBuiltAfreshEachTime) {
  auto object = test::objectOfTexts(application_.app, 2);
  MetadataForm form(*metadataKindOf(ObjectKind::Media), application_.app, presenter_);
  form.setObject(object);
  std::vector<int> counts;
  presenter_.act = [&](LoadedForm& loaded) {
    counts.push_back(loaded.fields().Count());
    loaded.arrTabScroll().set(1, -300);
    loaded.fields().colControls()[0].value = "dropped";
    loaded.CancelButt_Click();
  };
  form.Show(window_);
  EXPECT_FALSE(object->bChanged());
  object->secol().Item(2).setBValid(false);
  presenter_.act = [&](LoadedForm& loaded) {
    counts.push_back(loaded.fields().Count());
    EXPECT_EQ(loaded.arrTabScroll()[1], -300);  // but it stands where it was left
    EXPECT_EQ(loaded.fields().colControls()[0].value, Value("text 1"));
  };
  form.Show(window_);
  EXPECT_EQ(counts, (std::vector<int>{2, 1}));
}

TEST_F(MetadataFormTest, UnloadClosesAFormThatShowsAndNoOther) {
  auto object = test::objectOfTexts(application_.app, 1);
  MetadataForm form(*metadataKindOf(ObjectKind::Media), application_.app, presenter_);
  form.setObject(object);
  form.Unload();
  presenter_.act = [&](LoadedForm&) {
    form.Show(window_);  // shows already
    form.Unload();
  };
  form.Show(window_);
  form.Unload();
  EXPECT_EQ(presenter_.shown, 1);
  EXPECT_EQ(presenter_.closed, 1);
}

TEST_F(MetadataFormTest, AnErrorOfTheLoadLeavesAFormThatCanShowAgain) {
  auto object = test::objectOfTexts(application_.app, 1);
  SchemaElement& date = object->add(tyType::Date, "Day", "no date");
  MetadataForm form(*metadataKindOf(ObjectKind::Media), application_.app, presenter_);
  form.setObject(object);
  EXPECT_THROW(form.Show(window_), RunTimeError);
  date.setVContent(Date{});
  form.Show(window_);
  EXPECT_EQ(presenter_.shown, 1);
  object.reset();
  EXPECT_THROW(form.Show(window_), RunTimeError) << "it does not keep its object";
}

TEST_F(MetadataFormTest, PassesOfSetFrameHeight) {
  struct Row {
    int fields;
    int ofStorage;
    int ofMedia;
  };
  // Halves go to the even number.
  for (const Row& row : {Row{0, 0, 0}, Row{5, 0, 0}, Row{6, 1, 0}, Row{7, 1, 1}, Row{15, 2, 1},
                         Row{16, 2, 2}, Row{25, 2, 2}}) {
    for (const auto& [edited, passes] : {std::pair(ObjectKind::Storage, row.ofStorage),
                                         std::pair(ObjectKind::Media, row.ofMedia)}) {
      TabScroll scroll;
      LoadedForm form(application_.app, *metadataKindOf(edited),
                      test::objectOfTexts(application_.app, row.fields, edited), scroll);
      EXPECT_EQ(form.framePasses(), passes) << classNameOf(edited) << row.fields;
    }
  }
}

}  // namespace
}  // namespace velra
