// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "objects/Storage.h"
#include "store/ObjectRegistry.h"

namespace velra::test {
namespace {

using Texts = std::vector<std::string>;

struct MenuCase {
  const char* className;
  TreeId tree;
  bool addChild;
  bool addMainExpr;
};

TEST(EditCommands, EntriesAreOpenByTheClassOfTheNode) {
  const MenuCase cases[] = {
      {"AVDocument", TreeId::tvwMainTree, true, false},
      {"Version", TreeId::tvwMainTree, true, false},
      {"Media", TreeId::tvwMainTree, true, false},
      {"Storage", TreeId::tvwMainTree, false, false},
      {"Version", TreeId::tvwExpression, false, true},
      {"Video", TreeId::tvwExpression, false, false},
      {"Audio", TreeId::tvwExpression, false, false},
      {"Transcript", TreeId::tvwExpression, false, false},
  };
  Program program;
  program.mainForm.OpenFile(program.sample());
  program.click(TreeId::tvwMainTree, *program.version(1));
  for (const MenuCase& testCase : cases) {
    TreeNode* found = nullptr;
    program.mainForm.tree(testCase.tree).walk([&](TreeNode& node) {
      if (node.Tag->className() == testCase.className) found = &node;
      return !found;
    });
    ASSERT_TRUE(found) << testCase.className;
    program.mainForm.treeMouseDown(testCase.tree, kRightButton);
    program.mainForm.nodeClicked(testCase.tree, *found);
    EXPECT_EQ(program.mainForm.menuState().mnuAddChild, testCase.addChild) << testCase.className;
    EXPECT_EQ(program.mainForm.menuState().mnuAddMainExpr, testCase.addMainExpr)
        << testCase.className;
  }
}

TEST(EditCommands, TheRightButtonOnAVersionLeavesTheRightTree) {
  Program program;
  program.mainForm.OpenFile(program.sample());
  program.mainForm.treeMouseDown(TreeId::tvwMainTree, kRightButton);
  program.mainForm.nodeClicked(TreeId::tvwMainTree,
                               *program.mainForm.tvwMainTree.find(*program.version(1)));
  EXPECT_TRUE(program.texts(TreeId::tvwExpression).empty());
}

TEST(EditCommands, OneStorageOfADocumentIsSelected) {
  Program program;
  program.mainForm.OpenFile(program.sample());
  std::vector<std::shared_ptr<Storage>> storages;
  for (const auto& [number, object] : program.app.gAVDoc->collObjects().sequence()) {
    if (auto storage = as<Storage>(object)) storages.push_back(storage);
  }
  ASSERT_EQ(storages.size(), 4u);
  for (const auto& chosen : storages) {
    program.click(TreeId::tvwMainTree, *chosen);
    for (const auto& storage : storages) EXPECT_EQ(storage->bIsSelected(), storage == chosen);
  }
}

TEST(EditCommands, AppendedChildrenAreInTheTreeAtOnceAndOnDiskAfterSave) {
  Program program;
  changeCurrentFolder(program.folder.path());
  program.mainForm.mnuFileNew();
  program.ui.filesToSave = {program.folder / "film.xml"};
  program.mainForm.mnuFileSave();
  program.ui.takeShown();

  program.click(TreeId::tvwMainTree, *program.document());
  program.ui.inputs = {"First cut"};
  program.mainForm.mnuAddChild();
  program.click(TreeId::tvwMainTree, *program.version(1));
  program.ui.inputs = {"MPEG"};
  program.mainForm.mnuAddChild();
  program.click(TreeId::tvwMainTree, *program.version(1)->colChilds().at(0));
  const std::string movie = program.folder / "sample/lighthouse.mpg";
  program.ui.filesToOpen = {movie};
  program.mainForm.mnuAddChild();
  EXPECT_EQ(program.ui.takeShown(),
            (Texts{"input: Input the title of the new Version | Version Title",
                   "input: Input the format of the new Media (i.e., MPEG, AVI) | Media Format",
                   "open: Input Collocation of the Storage Movie"}));
  EXPECT_EQ(program.texts(TreeId::tvwMainTree),
            (Texts{"film", "  First cut", "    MPEG", "      " + movie}));
  EXPECT_NEAR(program.version(1)->dDuration(), 64.0, 0.001);

  program.click(TreeId::tvwMainTree, *program.version(1));
  program.click(TreeId::tvwExpression, *program.version(1));
  program.ui.inputs = {"Pictures", "Sound", "Words"};
  for (const auto kind : {ObjectKind::Video, ObjectKind::Audio, ObjectKind::Transcript}) {
    program.click(TreeId::tvwExpression, *program.version(1));
    program.mainForm.AddMainExpr(kind);
  }
  EXPECT_EQ(program.ui.takeShown(),
            (Texts{"input: Input the name of the Main Video | Main Video Name",
                   "input: Input the name of the Main Audio | Main Audio Name",
                   "input: Input the name of the Main Transcript | Main Transcript Name"}));
  EXPECT_EQ(program.texts(TreeId::tvwExpression),
            (Texts{"First cut", "  Pictures", "  Sound", "  Words"}));
  program.mainForm.mnuFileSave();
  for (const char* name : {"version1", "media1", "storage1", "video1", "audio1", "transcript1"}) {
    EXPECT_TRUE(std::filesystem::exists(program.folder / "film_files/film_" + name + ".xml"))
        << name;
  }
}

struct DurationCase {
  double versionSeconds;
  const char* movie;
  Texts shown;  // behind the file dialog
  bool added;
};

TEST(EditCommands, AMovieMustNotBeMuchShorterThanItsVersion) {
  const std::string differs =
      "plain: The duration of the video differs from the other storage(s) of the same Version";
  const DurationCase cases[] = {
      {65.0, "sample/lighthouse.mpg", {}, true},
      {65.5, "sample/lighthouse.mpg", {differs}, false},
      {10.0, "sample/lighthouse.avi", {}, true},
      {10.0, "text.avi", {"plain: Format not valid or unsupported"}, false},
  };
  for (const DurationCase& testCase : cases) {
    Program program;
    program.folder.write("text.avi", "no movie");
    program.mainForm.OpenFile(program.sample());
    program.version(2)->setDDuration(testCase.versionSeconds);
    const ObjectRef media = program.version(2)->colChilds().at(0);
    const std::size_t before = media->colChilds().size();
    program.click(TreeId::tvwMainTree, *media);
    program.ui.filesToOpen = {program.folder / testCase.movie};
    program.mainForm.mnuAddChild();
    Texts shown = program.ui.takeShown();
    shown.erase(shown.begin());
    EXPECT_EQ(shown, testCase.shown) << testCase.movie;
    EXPECT_EQ(media->colChilds().size(), before + (testCase.added ? 1 : 0)) << testCase.movie;
    EXPECT_EQ(program.version(2)->dDuration(), testCase.versionSeconds);
  }
}

TEST(EditCommands, AStorageBeepsAndWithoutOneThereIsNoMainExpression) {
  Program program;
  changeCurrentFolder(program.folder.path());
  program.mainForm.mnuFileNew();
  program.click(TreeId::tvwMainTree, *program.document());
  program.mainForm.mnuAddChild();  // cancelled
  EXPECT_TRUE(program.document()->colChilds().empty());
  program.ui.inputs = {"Cut"};
  program.mainForm.mnuAddChild();
  program.ui.takeShown();
  program.click(TreeId::tvwMainTree, *program.version(1));
  program.click(TreeId::tvwExpression, *program.version(1));
  program.mainForm.AddMainExpr(ObjectKind::Video);
  EXPECT_EQ(program.ui.takeShown(), Texts{"plain: You have to create a Storage, first"});

  program.ui.yesNoCancel = {Answer::No};
  program.mainForm.OpenFile(program.sample());
  program.ui.takeShown();
  const ObjectRef media = program.version(1)->colChilds().at(0);
  program.click(TreeId::tvwMainTree, *media->colChilds().at(0));
  program.mainForm.mnuAddChild();
  EXPECT_EQ(program.ui.takeShown(), Texts{"beep"});
}

}  // namespace
}  // namespace velra::test
