// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "platform/files/Files.h"
#include "store/IOManager.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class TransferTest : public ::testing::Test {
 protected:
  TransferTest() { program_.mainForm.OpenFile(program_.sample()); }

  Texts questions(const Texts& storages) const {
    Texts texts;
    for (const std::string& title : storages) {
      texts.push_back("input: " + program_.app.messages.text(1166) + title + " | Collocation");
    }
    return texts;
  }

  test::Program program_;
  const Texts storages_{"lighthouse.mpg", "lighthouse.avi", "lighthouse.mpg", "lighthouse.avi"};
};

TEST_F(TransferTest, TheFileMenuOpensOneOfThem) {
  const auto menus = [&] {
    program_.mainForm.mnuFile_Click();
    const MenuState& state = program_.mainForm.menuState();
    return std::pair(state.mnuExportToDB, state.mnuImportToFS);
  };
  EXPECT_EQ(menus(), std::pair(true, false));
  program_.document()->io()->setBFileSystem(false);
  EXPECT_EQ(menus(), std::pair(false, true));
  program_.app.gAVDoc.reset();
  EXPECT_EQ(menus(), std::pair(false, false));
}

TEST_F(TransferTest, ExportAsksForEveryStorageAndLeavesTheFilesAlone) {
  const auto before = program_.folder.snapshot();
  program_.click(TreeId::tvwMainTree, *program_.object("version1"));
  program_.document()->setStrTitle("Changed and not saved");
  program_.ui.inputs = {"urn:one", ""};
  program_.mainForm.mnuExportToDB();
  EXPECT_EQ(program_.ui.takeShown(), questions(storages_));
  // There is no server to open the document from.
  EXPECT_EQ(program_.document(), nullptr);
  EXPECT_TRUE(program_.texts(TreeId::tvwMainTree).empty());
  EXPECT_TRUE(program_.texts(TreeId::tvwExpression).empty());
  EXPECT_EQ(program_.folder.snapshot(), before);

  program_.mainForm.OpenFile(program_.sample());
  EXPECT_TRUE(program_.document());
  program_.mainForm.mnuFile_Click();
  EXPECT_TRUE(program_.mainForm.menuState().mnuExportToDB);
}

TEST_F(TransferTest, ExportKeepsTheFilesOfWhatWasRemovedAndSaved) {
  ObjectRef removed = program_.object("video7");
  program_.document()->RemoveObject(removed);
  program_.document()->bSave();
  const auto before = program_.folder.snapshot();
  program_.mainForm.mnuExportToDB();
  EXPECT_EQ(program_.folder.snapshot(), before);
}

TEST_F(TransferTest, ImportSavesUnderTheNewNameAndOpensIt) {
  const auto before = program_.folder.snapshot();
  program_.document()->io()->setBFileSystem(false);
  program_.ui.filesToSave = {program_.folder / "beacon.xml"};
  program_.ui.inputs = {"one.mpg", "two.mpg", "three.mpg", "four.mpg"};
  program_.mainForm.mnuImportToFS();
  Texts shown{"save: Save As | ./Skarholm Light"};
  for (const std::string& question : questions(storages_)) shown.push_back(question);
  EXPECT_EQ(program_.ui.takeShown(), shown);
  ASSERT_TRUE(program_.document());
  EXPECT_EQ(program_.document()->strTitle(), "beacon");
  EXPECT_TRUE(program_.document()->io()->bFileSystem());
  EXPECT_EQ(
      program_.texts(TreeId::tvwMainTree),
      (Texts{"beacon", "  Original English sound version", "    MPEG-1 viewing copy",
             "      one.mpg", "    AVI reading-room copy", "      two.mpg", "  Dutch re-release",
             "    Viewing set of the re-release", "      three.mpg", "      four.mpg"}));
  for (const auto& [name, bytes] : before) EXPECT_EQ(program_.folder.read(name), bytes) << name;
  EXPECT_TRUE(bFileExists(program_.folder / "beacon_files/beacon_mediaobject1.bmp"));
}

TEST_F(TransferTest, ImportEndsWithoutAName) {
  program_.document()->io()->setBFileSystem(false);
  program_.mainForm.mnuImportToFS();
  EXPECT_EQ(program_.ui.takeShown().size(), 1U);
  EXPECT_FALSE(program_.document()->io()->bFileSystem());
}

TEST_F(TransferTest, ImportToAPlaceThatCannotBeWrittenLosesNoFile) {
  const auto before = program_.folder.snapshot();
  program_.document()->io()->setBFileSystem(false);
  program_.ui.filesToSave = {program_.folder / "no such folder/beacon.xml"};
  program_.mainForm.mnuImportToFS();
  const Texts shown = program_.ui.takeShown();
  EXPECT_NE(std::find(shown.begin(), shown.end(), "plain: " + program_.app.messages.text(1095)),
            shown.end());
  EXPECT_EQ(program_.folder.snapshot(), before);
}

}  // namespace
}  // namespace velra
