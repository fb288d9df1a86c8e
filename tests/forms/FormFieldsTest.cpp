// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormFields.h"

#include <gtest/gtest.h>

#include "support/ErrorOf.h"
#include "support/FormObject.h"

namespace velra {
namespace {

using test::FormObject;

class FormFieldsTest : public ::testing::Test {
 protected:
  test::TestApplication application_;
  FormObject object_{application_.app, ObjectKind::Media};
  FormFields form_;
};

TEST_F(FormFieldsTest, EachTypeHasItsControl) {
  object_.shared.collCloseListTypes.Add({"Colour", {"red", "blue"}});
  struct Row {
    tyType type;
    Value stored;
    std::string control;
    Value shown;
  };
  const Row rows[] = {
      {tyType::String, "a", "Text1_1", "a"},
      {tyType::Integer, std::int16_t{0}, "Text1_2", "0"},
      {tyType::Date, Date{1999, 5, 2}, "DTPicker1_1", Date{1999, 5, 2}},
      {tyType::Bool, true, "Check1_1", std::int16_t{1}},
      {tyType::SetOfStrings, StringList{"x"}, "ctlSetOfString1_1", Value()},
      {tyType::Real, 0.5, "Text1_3", "0.5"},
      {tyType::CloseList, "green", "Combo1_1", "green"},  // no item of the list, and yet shown
      {tyType::Bool, std::int16_t{0}, "Check1_2", std::int16_t{0}},
      {tyType::Date, "01/01/2001", "DTPicker1_2", Date{2001, 1, 1}},
  };
  for (const Row& row : rows) object_.add(row.type, "F", row.stored, "Colour");
  form_.addFields(object_.secol(), nullptr);
  ASSERT_EQ(form_.Count(), static_cast<int>(std::size(rows)));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const FieldBox& box = form_.colControls()[i];
    EXPECT_EQ(box.controlName(), rows[i].control);
    EXPECT_EQ(box.frameName(), "Frame1_" + std::to_string(i + 1));
    EXPECT_EQ(box.value, rows[i].shown) << rows[i].control;
  }
  EXPECT_EQ(form_.colControls()[4].rows->rowText(1), "x");
  EXPECT_EQ(form_.colControls()[6].items, (std::vector<std::string>{"red", "blue"}));
}

TEST_F(FormFieldsTest, SkippedFieldsStillCountInTheTag) {
  object_.add(tyType::String, "Unassigned", {}).setBValid(false);
  object_.add(tyType::SetOfGUIDs, "Structural", StringList{});
  object_.add(tyType::String, "Shown", "a").setBReadOnly(true);
  object_.add(tyType::String, "Ignored", "a").setBIgnore(true);
  object_.add(tyType::String, "Last", "b");
  form_.addFields(object_.secol(), nullptr);
  ASSERT_EQ(form_.Count(), 2);
  const FieldBox& shown = form_.colControls()[0];
  EXPECT_EQ(shown.Tag, 3u);
  EXPECT_EQ(shown.strName, "Shown");
  EXPECT_EQ(shown.strComment, "About Shown");
  EXPECT_TRUE(shown.bReadOnly);
  EXPECT_EQ(form_.colControls()[1].Tag, 5u);
  EXPECT_FALSE(form_.colControls()[1].bReadOnly);
}

TEST_F(FormFieldsTest, AValueThatDoesNotFitItsControlIsAnError) {
  struct Row {
    tyType type;
    Value stored;
    int error;
  };
  const Row rows[] = {{tyType::Date, "no date", kTypeMismatch},
                      {tyType::Bool, "perhaps", kTypeMismatch},
                      {tyType::String, StringList{}, kTypeMismatch},
                      {tyType::SetOfStrings, Value(), kNoObject},
                      {tyType::CloseList, "a", kInvalidArgument}};  // no such list
  for (const Row& row : rows) {
    object_.add(row.type, "F", row.stored, "Missing");
    EXPECT_EQ(test::errorOf([&] { form_.addFields(object_.secol(), nullptr); }), row.error)
        << static_cast<int>(row.type);
    object_.secol().Remove(1);
  }
}

}  // namespace
}  // namespace velra
