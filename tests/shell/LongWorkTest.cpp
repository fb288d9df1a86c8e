// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <utility>

#include "Program.h"

namespace velra {
namespace {

TEST(LongWork, ShowsThatItIsBusyOnceForEachStep) {
  test::Program program;
  const auto signs = [&] { return std::exchange(program.ui.busySigns, 0); };
  program.mainForm.OpenFile(program.sample());
  EXPECT_EQ(signs(), 1);
  program.object("version1")->setStrTitle("Renamed");
  program.mainForm.mnuFileSave();
  EXPECT_EQ(signs(), 1);
  program.ui.filesToSave = {program.folder / "copy.xml"};
  program.mainForm.mnuFileSaveAs();
  EXPECT_EQ(signs(), 2) << "saving and opening again";
  program.click(TreeId::tvwMainTree, *program.version(1));
  program.ui.yesNo = {true};
  program.mainForm.DeleteNode(TreeId::tvwMainTree);
  EXPECT_EQ(signs(), 1);
  program.ui.yesNoCancel = {Answer::Yes};
  program.mainForm.mnuFileNew();
  EXPECT_EQ(signs(), 1) << "the save before the closing";
}

}  // namespace
}  // namespace velra
