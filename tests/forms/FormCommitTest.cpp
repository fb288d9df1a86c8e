// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormCommit.h"

#include <gtest/gtest.h>

#include "forms/FormFields.h"
#include "support/FormObject.h"

namespace velra {
namespace {

using test::FormObject;

constexpr std::int16_t kOff = 0;
constexpr std::int16_t kOn = 1;

TEST(FormCommit, WhatCountsAsDifferent) {
  struct Row {
    Value stored;
    Value held;
    bool different;
  };
  const Row rows[] = {
      {"a", "a", false},
      {"a", "A", true},
      {"", "", false},
      {Value(), "", false},
      {Value(), "a", true},
      {std::int16_t{0}, "0", true},
      {0.0, "0", true},
      {false, kOff, false},
      {false, kOn, true},
      {true, kOn, true},
      {true, kOff, true},
      {kOff, kOff, false},
      {kOff, kOn, true},
      {kOn, kOn, false},
      {kOn, kOff, true},
      {"1", kOn, true},
      {Date{2001, 1, 1}, Date{2001, 1, 1}, false},
      {Date{2001, 1, 1}, Date{2001, 1, 2}, true},
      {"01/01/2001", Date{2001, 1, 1}, true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(differs(row.stored, row.held), row.different) << &row - rows;
  }
}

class FormCommitTest : public ::testing::Test {
 protected:
  test::TestApplication application_;
  FormObject object_{application_.app, ObjectKind::Media, "Format"};
  FormFields form_;
  int titleChanges_ = 0;

  void build() { form_.addFields(object_.secol(), nullptr); }
  FieldBox& box(std::size_t number) { return form_.colControls()[number - 1]; }
  SchemaElement& field(std::size_t position) { return object_.secol().Item(position); }
  void commit() {
    commitForm(form_, object_.secol(), nullptr, "Format", [this] { ++titleChanges_; });
  }
};

TEST_F(FormCommitTest, UntouchedFieldsStayUnmarkedButForDefaultsAndTicks) {
  struct Row {
    tyType type;
    Value stored;
    bool changed;
    Value after;
  };
  const Row rows[] = {
      {tyType::String, "a\r\nb", false, "a\r\nb"},
      {tyType::Integer, std::int16_t{0}, true, "0"},
      {tyType::Integer, "12", false, "12"},
      {tyType::Bool, false, false, false},
      {tyType::Bool, true, true, kOn},
      {tyType::Date, "01/01/2001", true, Date{2001, 1, 1}},
      {tyType::SetOfStrings, StringList{"a"}, false, StringList{"a"}},
  };
  for (const Row& row : rows) object_.add(row.type, "F", row.stored);
  build();
  commit();
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(field(i + 1).bChanged(), rows[i].changed) << i;
    EXPECT_EQ(field(i + 1).vContent(), rows[i].after) << i;
  }
}

TEST_F(FormCommitTest, OnlyTheTitleFieldRenames) {
  object_.add(tyType::String, "Format", "old");
  object_.add(tyType::String, "Other", "old");
  build();
  box(2).value = "new";
  commit();
  EXPECT_EQ(titleChanges_, 0);
  box(1).value = "new";
  commit();
  EXPECT_EQ(titleChanges_, 1);
  EXPECT_EQ(object_.strTitle(), "new");
}

TEST_F(FormCommitTest, FieldsThatAreReadOnlyOrHaveNoControlKeepAll) {
  object_.add(tyType::Bool, "Locked", true).setBReadOnly(true);
  object_.add(tyType::String, "Unassigned", {}).setBValid(false);
  object_.add(tyType::String, "Third", "3");
  build();
  box(1).value = kOff;
  box(2).value = "changed";
  commit();
  EXPECT_FALSE(field(1).bChanged());
  EXPECT_EQ(field(1).vContent(), Value(true));
  EXPECT_FALSE(field(2).bChanged());
  EXPECT_EQ(field(3).vContent(), Value("changed"));
}

TEST_F(FormCommitTest, SetsCompareInOrder) {
  struct Row {
    StringList strings;
    bool changedBefore;
    bool changed;
    bool valid;
  };
  const Row rows[] = {{{"a", "b"}, false, false, true}, {{"b", "a"}, false, true, true},
                      {{"a"}, false, true, true},       {{"a", "B"}, false, true, true},
                      {{}, false, true, false},         {{"a", "b"}, true, true, true}};
  for (const Row& row : rows) {
    SchemaElement& set = object_.add(tyType::SetOfStrings, "S", StringList{"a", "b"});
    set.setBChanged(row.changedBefore);
    commitSet(set, row.strings);
    EXPECT_EQ(set.bChanged(), row.changed);
    EXPECT_EQ(set.bValid(), row.valid);
    EXPECT_EQ(set.vContent(), row.valid ? Value(row.strings) : Value());
    object_.secol().Remove(1);
  }
}

}  // namespace
}  // namespace velra
