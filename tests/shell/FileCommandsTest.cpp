// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "objects/MediaObject.h"
#include "protocol/VideoExpression.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra::test {
namespace {

using Texts = std::vector<std::string>;

TEST(FileCommands, OpenShowsBothTreesAndReleasesWhatWasOpenBefore) {
  Program program;
  program.mainForm.OpenFile(program.sample());
  EXPECT_EQ(program.ui.takeShown(), Texts{});
  const Texts left = program.texts(TreeId::tvwMainTree);
  EXPECT_EQ(left.size(), 1u + 2 + 3 + 4);
  EXPECT_TRUE(program.texts(TreeId::tvwExpression).empty());
  EXPECT_EQ(program.mainForm.tvwMainTree.selected(), program.mainForm.tvwMainTree.root());
  EXPECT_FALSE(program.mainForm.menuState().mnuAddMainExpr);
  program.mainForm.mnuEditMetadata();
  EXPECT_EQ(program.presenter.captions, Texts{"Skarholm Light"});

  program.click(TreeId::tvwMainTree, *program.version(1));
  const Texts right = program.texts(TreeId::tvwExpression);
  EXPECT_EQ(right.size(), 1u + 1 + 6 + 1 + 5 + 1 + 4);
  // The keyboard goes over to the right tree and back, and the Edit menu with it.
  program.click(TreeId::tvwExpression, *program.version(1));
  program.mainForm.treeEntered(TreeId::tvwMainTree);
  EXPECT_FALSE(program.mainForm.menuState().mnuAddMainExpr);
  program.mainForm.treeEntered(TreeId::tvwExpression);
  EXPECT_TRUE(program.mainForm.menuState().mnuAddMainExpr);

  std::vector<std::weak_ptr<RegisteredObject>> alive;
  for (const auto& [number, object] : program.app.gAVDoc->collObjects().sequence()) {
    alive.push_back(object);
  }
  const std::weak_ptr<IOManager> io = program.app.gAVDoc->io();
  program.mainForm.OpenFile(program.sample());
  for (const auto& object : alive) EXPECT_TRUE(object.expired());
  EXPECT_TRUE(io.expired());
}

TEST(FileCommands, OpeningAnObjectsFileOpensItsDocumentAndFirstShowsTheObjectsForm) {
  for (const std::string name : {"version1", "media1", "storage1"}) {
    Program program;
    if (name == "media1") {
      std::filesystem::rename(program.sample(), program.folder / "sample/lighthouse.XML");
    }
    std::size_t nodesAtForm = 1;
    program.presenter.whileShown = [&](LoadedForm&) {
      nodesAtForm = program.texts(TreeId::tvwMainTree).size();
    };
    program.mainForm.OpenFile(program.folder /
                              ("sample/lighthouse_files/lighthouse_" + name + ".xml"));
    EXPECT_EQ(program.presenter.captions.size(), 1u) << name;
    EXPECT_EQ(nodesAtForm, 0u) << name;
    EXPECT_EQ(program.texts(TreeId::tvwMainTree).size(), 10u) << name;
    EXPECT_EQ(program.ui.takeShown(), Texts{}) << name;
  }
  for (const std::string name : {"video3", "audio1", "transcript2"}) {
    Program program;
    program.mainForm.OpenFile(program.folder /
                              ("sample/lighthouse_files/lighthouse_" + name + ".xml"));
    EXPECT_EQ(program.expressionForms.size(), 1u) << name;
    EXPECT_EQ(program.texts(TreeId::tvwMainTree).size(), 10u) << name;
  }
}

TEST(FileCommands, LeavingTakesThePicturesThatNothingSavedNames) {
  Program program;
  program.mainForm.OpenFile(program.sample());
  auto expected = program.folder.snapshot();
  as<VideoExpression>(program.expression("video3"))->objKeyframeObject()->setBChanged(true);
  expected.erase("sample/lighthouse_files/lighthouse_mediaobject2.bmp");
  program.mainForm.releaseDocument();
  EXPECT_EQ(program.folder.snapshot(), expected);
  program.mainForm.releaseDocument();  // a program without a document leaves too
}

TEST(FileCommands, ASavedDocumentEndsInXmlWhateverWasTyped) {
  const struct {
    std::string typed;
    std::string saved;
    bool asks = false;
  } cases[] = {
      {"new.XML", "new.XML"},
      {"new", "new.xml"},
      {"my.film", "my.film.xml"},
      {"my.film", "my.film.xml", true},
  };
  Program program;
  changeCurrentFolder(program.folder.path());
  for (const auto& one : cases) {
    program.mainForm.mnuFileNew();
    EXPECT_EQ(program.mainForm.strStatusBarText(), "New: AVDocument");
    program.document()->AddChild("Cut");
    program.ui.takeShown();
    program.ui.yesNo = {false, true};
    program.ui.filesToSave.assign(2, program.folder / one.typed);
    program.mainForm.mnuFileSave();
    Texts shown{"save: Save As | " + (program.folder / "AVDocument")};
    if (one.asks) {
      const std::string asked =
          "yes-no: " + (program.folder / one.saved) + " already exists. Do you want to replace it?";
      shown.insert(shown.end(), {asked, "save: Save As | " + (program.folder / one.saved), asked});
    }
    EXPECT_EQ(program.ui.takeShown(), shown);
    EXPECT_EQ(program.document()->strGUID(), program.folder / one.saved);
    EXPECT_EQ(program.document()->strTitle() + ".", one.saved.substr(0, one.saved.size() - 3));
    EXPECT_EQ(program.mainForm.strStatusBarText(), "Save As: " + (program.folder / one.saved));
    EXPECT_TRUE(program.folder.snapshot().contains(one.saved)) << one.saved;
    EXPECT_FALSE(std::filesystem::exists(program.folder / "AVDocument_files"));
  }
}

TEST(Start, TheCommandLineIsOnePath) {
  struct Case {
    std::vector<const char*> arguments;
    std::string line;
  };
  const Case cases[] = {
      {{}, ""},
      {{"film.xml"}, "/start/film.xml"},
      {{"./film.xml"}, "/start/film.xml"},
      {{"/abs/film.xml"}, "/abs/film.xml"},
      {{"a", "b", "film.xml"}, "/start/a b film.xml"},
      {{"a b/film.xml"}, "/start/a b/film.xml"},
      {{"\"a b/film.xml\""}, "\"/start/a b/film.xml\""},
      {{"one\"quote.xml"}, "one\"quote.xml"},
      {{"\"a\"", "\"b\""}, "\"a\" \"b\""},
  };
  for (const auto& [arguments, line] : cases) {
    EXPECT_EQ(commandLineOf(static_cast<int>(arguments.size()), arguments.data(), "/start"), line);
  }
}

TEST(Start, ShowsTheWindowThenTheSplashThenTheDocument) {
  Program program;
  Texts steps;
  const StartSteps windows{[&] { steps.emplace_back("window"); },
                           [&] {
                             steps.emplace_back("splash");
                             EXPECT_FALSE(program.app.gAVDoc);
                           }};
  Main(program.app, program.mainForm, "\"" + program.sample() + "\"", windows);
  EXPECT_EQ(steps, (Texts{"window", "splash"}));
  EXPECT_EQ(program.texts(TreeId::tvwMainTree).size(), 10u);
}

}  // namespace
}  // namespace velra::test
