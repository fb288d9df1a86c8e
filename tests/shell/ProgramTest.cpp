// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "objects/MediaObject.h"
#include "protocol/VideoExpression.h"
#include "shell/TerminalAnswer.h"
#include "store/SubTreeRemoval.h"
#include "support/FormObject.h"

namespace velra::test {
namespace {

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

TEST(Start, TheCommandLineIsOnePath) {
  struct Case {
    std::vector<const char*> arguments;
    std::string line;
    std::string answerInTerminal{};  // how it begins
  };
  const Case cases[] = {
      {{}, ""},
      {{"--version"}, "/start/--version", "velra 1.2.3\n"},
      {{"--help"}, "/start/--help", "Uso:\n"},
      {{"./--help"}, "/start/--help"},
      {{"--help", "me.xml"}, "/start/--help me.xml"},
      {{"film.xml"}, "/start/film.xml"},
      {{"./film.xml"}, "/start/film.xml"},
      {{"/abs/film.xml"}, "/abs/film.xml"},
      {{"a", "b", "film.xml"}, "/start/a b film.xml"},
      {{"a b/film.xml"}, "/start/a b/film.xml"},
      {{"\"a b/film.xml\""}, "\"/start/a b/film.xml\""},
      {{"one\"quote.xml"}, "one\"quote.xml"},
      {{"\"a\"", "\"b\""}, "\"a\" \"b\""},
  };
  for (const auto& [arguments, line, answer] : cases) {
    const int count = static_cast<int>(arguments.size());
    EXPECT_EQ(commandLineOf(count, arguments.data(), "/start"), line);
    const auto said =
        terminalAnswer(count, arguments.data(), InterfaceLanguage::Italian, "1.2.3").value_or("");
    EXPECT_EQ(said.substr(0, answer.empty() ? said.npos : answer.size()), answer) << line;
  }
}

/// An object that cannot list what is below it.
class PartlyRead : public FormObject {
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

TEST(DeleteNode, APartlyReadObjectStays) {
  Program program;
  program.mainForm.OpenFile(program.sample());
  auto node = std::make_unique<TreeNode>();
  node->Text = "part";
  node->Tag = std::make_shared<PartlyRead>(program.app, *program.document());
  program.mainForm.tvwMainTree.replace(std::move(node));
  program.mainForm.tvwMainTree.select(program.mainForm.tvwMainTree.root());
  program.ui.yesNo = {true};
  program.mainForm.DeleteNode(TreeId::tvwMainTree);
  EXPECT_EQ(program.ui.takeShown().back(), "plain: part :open whole document first!");
  EXPECT_EQ(program.texts(TreeId::tvwMainTree), std::vector<std::string>{"part"});
}

}  // namespace
}  // namespace velra::test
