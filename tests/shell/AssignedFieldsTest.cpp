#include <gtest/gtest.h>

#include "Program.h"
#include "forms/AVDocSchemaDialog.h"
#include "forms/FieldBox.h"
#include "schema/SEColl.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

/// "Edit Assigned/Unassigned flags" and "Edit Metadata" on one object of the sample.
class AssignedFieldsTest : public ::testing::Test {
 protected:
  AssignedFieldsTest() {
    program_.mainForm.OpenFile(program_.sample());
    program_.click(TreeId::tvwMainTree, *program_.object("media1"));
  }

  /// Moves the tick of the row of a name; false when it is refused.
  static bool tick(AVDocSchemaDialog& dialog, const std::string& name, bool ticked) {
    for (std::size_t row = 1; row <= dialog.rows().size(); ++row) {
      if (dialog.rows()[row - 1].strName == name) return dialog.setTicked(row, ticked);
    }
    ADD_FAILURE() << name;
    return false;
  }
  void flags(std::function<void(AVDocSchemaDialog&)> act) {
    program_.presenter.onSchema = std::move(act);
    program_.mainForm.mnuEditAttributes();
  }
  /// The names of the fields on the form.
  Texts form(std::function<void(LoadedForm&)> act = {}) {
    Texts names;
    program_.presenter.whileShown = [&](LoadedForm& form) {
      for (const FieldBox& box : form.fields().colControls()) names.push_back(box.strName);
      if (act) act(form);
    };
    program_.mainForm.mnuEditMetadata();
    return names;
  }
  static bool has(const Texts& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  }
  std::string file() const { return program_.read("lighthouse_files/lighthouse_media1.xml"); }

  test::Program program_;
};

TEST_F(AssignedFieldsTest, AFieldComesAndGoesOnTheFormAndInTheFile) {
  // A text field that is free and not assigned, whichever the schema has.
  std::string fresh;
  for (const SchemaElement& field : program_.object("media1")->secol()) {
    if (field.tyType() == tyType::String && !field.bValid() && !field.bReadOnly() &&
        !field.bIgnore()) {
      fresh = field.strName();
    }
  }
  ASSERT_NE(fresh, "");
  flags([&](AVDocSchemaDialog& dialog) {
    EXPECT_TRUE(tick(dialog, fresh, true));
    dialog.OKButton_Click();
  });
  EXPECT_TRUE(has(form(), fresh));
  program_.mainForm.mnuFileSave();
  const std::string element = "<" + fresh + ">" + program_.app.LoadResString(1081) + "<";
  EXPECT_NE(file().find(element), std::string::npos);

  flags([&](AVDocSchemaDialog& dialog) {
    EXPECT_TRUE(tick(dialog, fresh, false));
    dialog.OKButton_Click();
  });
  EXPECT_FALSE(has(form(), fresh));
  program_.mainForm.mnuFileSave();
  EXPECT_EQ(file().find("<" + fresh), std::string::npos);
}

TEST_F(AssignedFieldsTest, ASetThatIsEmptiedLeavesFormAndFile) {
  program_.click(TreeId::tvwMainTree, *program_.document());
  const Texts before = form([](LoadedForm& form) {
    for (FieldBox& box : form.fields().colControls()) {
      if (box.strName != "FreeKeywords") continue;
      for (std::int16_t row = 1; row <= box.rows->Count(); ++row) box.rows->tickRow(row, true);
      box.rows->Command2_Click();
    }
    form.OKButt_Click();
  });
  EXPECT_TRUE(has(before, "FreeKeywords"));
  EXPECT_FALSE(has(form(), "FreeKeywords"));
  program_.mainForm.mnuFileSave();
  EXPECT_EQ(program_.read("lighthouse.xml").find("FreeKeywords"), std::string::npos);
}

}  // namespace
}  // namespace velra
