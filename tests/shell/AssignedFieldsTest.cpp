// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "forms/AVDocSchemaDialog.h"
#include "forms/FieldBox.h"
#include "schema/SEColl.h"

namespace velra {
namespace {

// By "Edit Assigned/Unassigned flags", "Edit Metadata" and "Save" on one object of the sample.
TEST(AssignedFields, AFieldComesAndGoesOnTheFormAndInTheFile) {
  test::Program program;
  program.mainForm.OpenFile(program.sample());
  program.click(TreeId::tvwMainTree, *program.object("media1"));
  const SEColl& fields = program.object("media1")->secol();
  std::size_t row = 1;  // of a text that is not assigned
  while (fields.Item(row).tyType() != tyType::String || fields.Item(row).bValid()) ++row;
  const std::string name = fields.Item(row).strName();
  for (const bool assigned : {true, false}) {
    program.presenter.onSchema = [&](AVDocSchemaDialog& dialog) {
      EXPECT_TRUE(dialog.setTicked(row, assigned));
      dialog.OKButton_Click();
    };
    program.mainForm.mnuEditAttributes();
    bool shown = false;
    program.presenter.whileShown = [&](LoadedForm& form) {
      for (const FieldBox& box : form.fields().colControls()) shown |= box.strName == name;
    };
    program.mainForm.mnuEditMetadata();
    EXPECT_EQ(shown, assigned);
    program.mainForm.mnuFileSave();
    const std::string file = program.read("lighthouse_files/lighthouse_media1.xml");
    EXPECT_EQ(file.find("<" + name + ">Not Assigned<") != std::string::npos, assigned);
  }
}

}  // namespace
}  // namespace velra
