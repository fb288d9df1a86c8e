// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "Program.h"
#include "platform/files/Files.h"
#include "store/SubTreeRemoval.h"
#include "support/FormObject.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

Texts namesOf(const Files& files) {
  Texts names;
  for (const auto& [name, bytes] : files) names.push_back(name);
  return names;
}

/// An object that cannot list what is below it.
class PartlyRead : public test::FormObject {
 public:
  PartlyRead(ApplicationModule& app, OpenDocument& document)
      : FormObject(app, ObjectKind::Media, "Format"), document_(document) {
    add(tyType::String, "Format", "part");
  }
  ObjectList colSelSubTree() override { return {}; }
  std::string strRemoveAllChilds() override { return strRemoveAllBelow(*this, document_); }

 private:
  OpenDocument& document_;
};

/// The Delete key on the trees of the sample document.
class RemovalTest : public ::testing::Test {
 protected:
  RemovalTest() {
    program_.mainForm.OpenFile(program_.sample());
    before_ = program_.folder.snapshot();
    for (const char* name : {"video2", "video3", "video4", "video5", "video6", "video7"}) {
      keys_[name] = program_.object(name)->strGUID();
    }
  }

  std::string question(const std::string& title) const {
    return "yes-no: Are you sure you want elminate the object " + title + " and all its childs?";
  }
  void remove(TreeId tree, const std::string& name, bool yes = true) {
    const ObjectRef object = program_.object(name);
    program_.click(tree, *object);
    const std::string title = object->strTitle();
    program_.ui.yesNo = {yes};
    program_.mainForm.DeleteNode(tree);
    EXPECT_EQ(program_.ui.takeShown(), Texts{question(title)});
  }
  void showExpressions() { program_.click(TreeId::tvwMainTree, *program_.object("version1")); }
  void closeWithoutSaving() {
    program_.ui.yesNoCancel = {Answer::No};
    program_.mainForm.mnuFileNew();
    program_.ui.takeShown();
  }
  /// Everything registered but the movies and pictures.
  std::vector<std::weak_ptr<DescribedObject>> described() const {
    const ObjectList objects = program_.document()->collObjects().described();
    return {objects.begin(), objects.end()};
  }
  static long living(const std::vector<std::weak_ptr<DescribedObject>>& objects) {
    return std::count_if(objects.begin(), objects.end(),
                         [](const auto& object) { return !object.expired(); });
  }
  /// Files that were there before and are not any more.
  Texts goneFiles() const {
    const Texts all = namesOf(before_);
    const Texts now = namesOf(program_.folder.snapshot());
    Texts gone;
    std::set_difference(all.begin(), all.end(), now.begin(), now.end(), std::back_inserter(gone));
    return gone;
  }
  bool hasIcon(const std::string& name) const {
    return program_.mainForm.imlTreeIcons().holds(keys_.at(name));
  }

  test::Program program_;
  Files before_;
  std::map<std::string, std::string> keys_;  // of the icons of key frames
  const Texts wholeMainTree_{
      "Skarholm Light",       "  Original English sound version",  "    MPEG-1 viewing copy",
      "      lighthouse.mpg", "    AVI reading-room copy",         "      lighthouse.avi",
      "  Dutch re-release",   "    Viewing set of the re-release", "      lighthouse.mpg",
      "      lighthouse.avi"};
};

TEST_F(RemovalTest, TheRootAndNothingAreLeftAloneWithoutAQuestion) {
  program_.mainForm.DeleteNode(TreeId::tvwMainTree);
  program_.mainForm.DeleteNode(TreeId::tvwExpression);
  program_.click(TreeId::tvwMainTree, *program_.document());
  program_.mainForm.DeleteNode(TreeId::tvwMainTree);
  EXPECT_TRUE(program_.ui.shown.empty());
  EXPECT_EQ(program_.texts(TreeId::tvwMainTree), wholeMainTree_);
}

TEST_F(RemovalTest, NoChangesNothing) {
  const std::size_t count = program_.document()->collObjects().Count();
  remove(TreeId::tvwMainTree, "version1", false);
  EXPECT_EQ(program_.document()->collObjects().Count(), count);
  EXPECT_EQ(program_.texts(TreeId::tvwMainTree), wholeMainTree_);
  EXPECT_FALSE(program_.document()->bChanged());
}

TEST_F(RemovalTest, APartlyReadObjectStays) {
  auto node = std::make_unique<TreeNode>();
  node->Text = "part";
  node->Tag = std::make_shared<PartlyRead>(program_.app, *program_.document());
  program_.mainForm.tvwMainTree.replace(std::move(node));
  program_.mainForm.tvwMainTree.select(program_.mainForm.tvwMainTree.root());
  program_.ui.yesNo = {true};
  program_.mainForm.DeleteNode(TreeId::tvwMainTree);
  EXPECT_EQ(program_.ui.takeShown(),
            (Texts{question("part"), "plain: part :open whole document first!"}));
  EXPECT_EQ(program_.texts(TreeId::tvwMainTree), Texts{"part"});
}

TEST_F(RemovalTest, AVersionGoesWithItsLadderItsExpressionsAndTheirIcons) {
  const auto objects = described();
  for (const TreeId tree : {TreeId::tvwMainTree, TreeId::tvwExpression}) {
    if (tree == TreeId::tvwExpression) {
      program_.ui.yesNoCancel = {Answer::No};
      program_.mainForm.OpenFile(program_.sample());
      program_.ui.takeShown();
    }
    const auto present = described();
    showExpressions();
    ASSERT_TRUE(hasIcon("video2"));
    remove(tree, "version1");
    EXPECT_EQ(program_.texts(TreeId::tvwMainTree),
              (Texts{"Skarholm Light", "  Dutch re-release", "    Viewing set of the re-release",
                     "      lighthouse.mpg", "      lighthouse.avi"}));
    EXPECT_TRUE(program_.texts(TreeId::tvwExpression).empty());
    for (const char* name : {"video2", "video3", "video4", "video5", "video6", "video7"}) {
      EXPECT_FALSE(hasIcon(name)) << name;
    }
    // The document, the other Version, its Media and two Storages; nothing keeps the rest.
    EXPECT_EQ(living(present), 5);
    EXPECT_TRUE(program_.document()->bChanged());
  }
  EXPECT_EQ(living(objects), 0);
}

TEST_F(RemovalTest, ASegmentGoesWithItsOwnAndTheChainClosesOverTheGap) {
  showExpressions();
  const std::weak_ptr<DescribedObject> gone[] = {
      program_.object("video3"), program_.object("video4"), program_.object("video5")};
  remove(TreeId::tvwExpression, "video3");
  for (const auto& object : gone) EXPECT_TRUE(object.expired());
  const Texts right = program_.texts(TreeId::tvwExpression);
  EXPECT_EQ(Texts(right.begin(), right.begin() + 5),
            (Texts{"Original English sound version", "  Picture of Skarholm Light",
                   "    Skarholm at dawn", "    The gale", "    The light at night"}));
  EXPECT_EQ(program_.texts(TreeId::tvwMainTree), wholeMainTree_);
  EXPECT_EQ(program_.expression("video2")->objFollowedBy(), program_.expression("video6"));
  EXPECT_TRUE(hasIcon("video2"));
  EXPECT_FALSE(hasIcon("video3"));
  EXPECT_FALSE(hasIcon("video4"));

  EXPECT_TRUE(program_.document()->bSave());
  EXPECT_NE(program_.read("lighthouse_files/lighthouse_video2.xml").find("_video6.xml"),
            std::string::npos);
}

TEST_F(RemovalTest, MainExpressionsGoAndTheVersionStays) {
  showExpressions();
  remove(TreeId::tvwExpression, "audio1");
  remove(TreeId::tvwExpression, "transcript1");
  const auto version = program_.version(1);
  EXPECT_EQ(version->auMainAudio(), nullptr);
  EXPECT_EQ(version->trMainTranscript(), nullptr);
  ASSERT_NE(version->vdMainVideo(), nullptr);
  // The picture's own fields still name them, and that costs no message.
  EXPECT_TRUE(program_.document()->bSave());
  program_.mainForm.OpenFile(program_.sample());
  EXPECT_TRUE(program_.ui.takeShown().empty());
}

TEST_F(RemovalTest, TheDurationStaysUntilTheLastStorageGoes) {
  const auto duration = [&](std::size_t place) { return program_.version(place)->dDuration(); };
  remove(TreeId::tvwMainTree, "storage3");
  EXPECT_EQ(duration(2), 64);
  remove(TreeId::tvwMainTree, "storage4");
  EXPECT_EQ(duration(2), 0);
  remove(TreeId::tvwMainTree, "media1");
  EXPECT_EQ(duration(1), 64);
  remove(TreeId::tvwMainTree, "media2");
  EXPECT_EQ(duration(1), 0);
}

TEST_F(RemovalTest, FilesGoWhenTheDocumentHasBeenSavedAndThenClosed) {
  showExpressions();
  remove(TreeId::tvwExpression, "video3");
  remove(TreeId::tvwMainTree, "storage4");
  program_.mainForm.mnuFileSave();
  EXPECT_TRUE(program_.ui.takeShown().empty());
  EXPECT_EQ(goneFiles(), Texts{});
  // Removed after the save: kept.
  remove(TreeId::tvwMainTree, "storage3");
  closeWithoutSaving();
  const std::string prefix = "sample/lighthouse_files/lighthouse_";
  EXPECT_EQ(goneFiles(),
            (Texts{prefix + "mediaobject2.bmp", prefix + "mediaobject3.bmp",
                   prefix + "mediaobject4.bmp", prefix + "storage4.xml", prefix + "video3.xml",
                   prefix + "video4.xml", prefix + "video5.xml"}));
  program_.mainForm.OpenFile(program_.sample());
  EXPECT_TRUE(bFileExists(program_.folder / "sample/lighthouse.avi"));
}

}  // namespace
}  // namespace velra
