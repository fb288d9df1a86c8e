// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/AVDocSchemaDialog.h"

#include <gtest/gtest.h>

#include "forms/FormPresenter.h"
#include "support/FormObject.h"

namespace velra {
namespace {

class DialogPresenter : public FormPresenter {
 public:
  std::function<void(AVDocSchemaDialog&)> act;

  void showForm(FormOwner&, LoadedForm&) override {}
  void showSchemaDialog(FormOwner&, AVDocSchemaDialog& dialog) override { act(dialog); }
};

class SchemaDialogTest : public ::testing::Test {
 protected:
  test::TestApplication application_;
  test::RecordingMainWindow window_;
  test::FormObject object_{application_.app, ObjectKind::Media};
  DialogPresenter presenter_;
  AVDocSchemaDialog dialog_{application_.app, presenter_};

  SchemaElement& field(std::size_t position) { return object_.secol().Item(position); }
  void show(std::function<void(AVDocSchemaDialog&)> act) {
    presenter_.act = std::move(act);
    dialog_.ShowDialog(window_, object_.secol());
  }
};

TEST_F(SchemaDialogTest, HasARowForEveryField) {
  object_.add(tyType::CloseList, "Colour", "red", "Colours");
  object_.add(tyType::ChunkTime, "Span", {}).setBValid(false);
  show([](AVDocSchemaDialog& dialog) {
    ASSERT_EQ(dialog.rows().size(), 2u);
    EXPECT_TRUE(dialog.rows()[0].ticked);
    EXPECT_EQ(dialog.rows()[0].strType, "Colours (CloseList)");
    EXPECT_EQ(dialog.rows()[0].strComment, "About Colour");
    EXPECT_FALSE(dialog.rows()[1].ticked);
    EXPECT_EQ(dialog.rows()[1].strName, "Span");
    EXPECT_EQ(dialog.rows()[1].strType, "ChunkTime");
  });
}

TEST_F(SchemaDialogTest, RefusesStructuralIgnoredAndReadOnlyRows) {
  object_.add(tyType::SetOfGUIDs, "Links", StringList{});
  object_.add(tyType::String, "Ignored", "a").setBIgnore(true);
  object_.add(tyType::String, "Locked", "a").setBReadOnly(true);
  object_.add(tyType::String, "Free", "a");
  show([this](AVDocSchemaDialog& dialog) {
    for (const std::size_t row : {1u, 2u, 3u}) {
      EXPECT_FALSE(dialog.setTicked(row, false));
      EXPECT_TRUE(dialog.rows()[row - 1].ticked);
    }
    EXPECT_EQ(application_.ui.takeShown(), (std::vector<std::string>{"beep", "beep", "beep"}));
    EXPECT_TRUE(dialog.setTicked(4, false));
    dialog.OKButton_Click();
  });
  EXPECT_TRUE(field(1).bValid());
  EXPECT_FALSE(field(4).bValid());
  EXPECT_EQ(field(4).vContent(), Value("a"));  // kept until it is ticked again
  EXPECT_TRUE(application_.ui.shown.empty());
}

TEST_F(SchemaDialogTest, ANewTickGivesTheDefault) {
  object_.add(tyType::String, "Text", "old").setBValid(false);
  object_.add(tyType::Date, "Day", {}).setBValid(false);
  show([](AVDocSchemaDialog& dialog) {
    dialog.setTicked(1, true);
    dialog.setTicked(2, true);
    dialog.OKButton_Click();
  });
  EXPECT_EQ(field(1).vContent(), Value(application_.app.messages.text(1081)));
  EXPECT_EQ(field(2).vContent(), Value("01/01/2001"));
  for (const std::size_t position : {1u, 2u}) {
    EXPECT_TRUE(field(position).bValid());
    EXPECT_TRUE(field(position).bChanged());
  }
  EXPECT_FALSE(dialog_.bCancel());
}

TEST_F(SchemaDialogTest, MovedBackOrCancelledLeavesNoTrace) {
  object_.add(tyType::String, "Text", "old");
  show([](AVDocSchemaDialog& dialog) {
    dialog.setTicked(1, false);
    dialog.setTicked(1, true);
    dialog.OKButton_Click();
  });
  show([](AVDocSchemaDialog& dialog) {
    dialog.setTicked(1, false);
    dialog.CancelButton_Click();
  });
  EXPECT_TRUE(dialog_.bCancel());
  EXPECT_TRUE(field(1).bValid());
  EXPECT_FALSE(field(1).bChanged());
  EXPECT_EQ(field(1).vContent(), Value("old"));
}

}  // namespace
}  // namespace velra
