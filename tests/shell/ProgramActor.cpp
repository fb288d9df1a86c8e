// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ProgramActor.h"

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/Text.h"
#include "forms/FieldBox.h"
#include "objects/MediaObject.h"
#include "objects/Storage.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra::test {

namespace {

std::string fileOf(const DescribedObject& object) {
  return strFileName(object.strGUID());
}

}  // namespace

ProgramActor::ProgramActor() {
  replaced_[program_.folder.path()] = "~";
  changeCurrentFolder(program_.folder.path());
  files_ = program_.folder.snapshot();
  learnFileMenu();
  learnEditMenu();
  learnDialogs();
  learnToPrepare();
  learnToLook();
  answerWindows();
}

void ProgramActor::prepare(const std::vector<std::string>& answers) {
  answers_ = answers;
  ScriptedUserInterface& ui = program_.ui;
  ui.forgetAnswers();
  for (const std::string& answer : answers) {
    if (answer == "yes" || answer == "no") {
      ui.yesNo.push_back(answer == "yes");
      ui.yesNoCancel.push_back(answer == "yes" ? Answer::Yes : Answer::No);
    } else {
      if (!answer.ends_with(".xml")) ui.inputs.push_back(answer);
      ui.filesToOpen.push_back(program_.folder / answer);
      ui.filesToSave.push_back(program_.folder / answer);
    }
  }
}

std::vector<std::string> ProgramActor::takeShown() {
  std::vector<std::string> shown = program_.ui.takeShown();
  for (const std::string& title : std::exchange(program_.expressionForms, {})) {
    shown.push_back("tool: " + title);
  }
  // The parser's own words differ from version to version.
  const std::string line = "Line 1: ";
  for (std::string& text : shown) {
    const std::size_t at = text.find(line);
    if (at != std::string::npos)
      text.replace(at + line.size(), text.rfind(" (") - at - line.size(), "...");
  }
  return shown;
}

ObjectRef ProgramActor::object(const std::string& name) const {
  for (const ObjectRef& each : program_.document()->collObjects().described()) {
    if (fileOf(*each).ends_with("_" + name + ".xml")) return each;
  }
  return program_.document();
}

void ProgramActor::learnFileMenu() {
  frmMain& main = program_.mainForm;
  verbs_["open"] = [&](const std::string& file) { main.OpenFile(program_.folder / file); };
  verbs_["choose"] = [&](auto&) { main.ShowOpenDialog(); };
  verbs_["new"] = [&](auto&) { main.mnuFileNew(); };
  verbs_["save"] = [&](auto&) { main.mnuFileSave(); };
  verbs_["save-as"] = [&](auto&) { main.mnuFileSaveAs(); };
  verbs_["export"] = [&](auto&) { main.mnuExportToDB(); };
  verbs_["import"] = [&](auto&) { main.mnuImportToFS(); };
  verbs_["export-as"] = [&](auto&) { main.mnuFileExportAs(); };
  verbs_["import-file"] = [&](auto&) { main.mnuFileImport(); };
  verbs_["shots"] = [&](auto& rows) { object_ = rows, main.mnuFileFindShots(); };
  verbs_["independent"] = [&](auto&) { main.mnuFileIndependent(); };
  verbs_["leave"] = [&](auto&) { main.releaseDocument(); };
  verbs_["start"] = [&](const std::string& line) {
    Main(program_.app, main, replaceAll(line, "~", program_.folder.path()),
         {[this] { say("window"); }, [this] { say("splash"); }});
  };
}

void ProgramActor::learnEditMenu() {
  frmMain& main = program_.mainForm;
  verbs_["click"] = [this](auto& words) { click(words, kLeftButton); };
  verbs_["right-click"] = [this](auto& words) { click(words, kRightButton); };
  verbs_["enter"] = [&](auto& tree) { main.treeEntered(treeOf(tree)); };
  verbs_["delete"] = [&](auto& tree) { main.DeleteNode(treeOf(tree)); };
  verbs_["metadata"] = [&](auto& fields) { object_ = fields, main.mnuEditMetadata(); };
  verbs_["flags"] = [&](auto& field) { object_ = field, main.mnuEditAttributes(); };
  verbs_["child"] = [&](auto&) { main.mnuAddChild(); };
  verbs_["main"] = [&](auto& kind) { main.AddMainExpr(kindOfRoot(kind).value()); };
  verbs_["cancel-movies"] = [&](auto&) { program_.ui.waits = false; };
  verbs_["language"] = [&](auto& number) { main.setLanguage(std::stoi(number)); };
}

void ProgramActor::click(const std::string& treeAndName, MouseButton button) {
  const TreeId tree = treeOf(treeAndName);
  TreeNode* node = program_.mainForm.tree(tree).find(*object(halves(treeAndName, " ").second));
  ASSERT_TRUE(node) << treeAndName;
  program_.mainForm.treeMouseDown(tree, button);
  program_.mainForm.nodeClicked(tree, *node);
}

void ProgramActor::learnDialogs() {
  frmMain& main = program_.mainForm;
  verbs_["find"] = [&](auto& text) { object_ = text, main.mnuFileFind(); };
  verbs_["connection"] = [&](auto& changes) { object_ = changes, main.mnuConnection(); };
  verbs_["recover"] = [&](auto& button) { object_ = button, main.mnuFileRecover(); };
  program_.presenter.onRecover = [this](RecoverDialog& dialog) { act(dialog, object_); };
  program_.presenter.onShots = [this](ShotsDialog& dialog) {
    dialog.SearchButton_Click(5, 1);
    for (const ShotsDialog::Row& row : dialog.rows()) say(row.text);
    if (object_ == "cancel") return dialog.CancelButton_Click();
    dialog.setTicked(std::stoul(object_) - 1, false);
    dialog.OKButton_Click();
  };
  program_.presenter.onSearch = [this](SearchDialog& dialog) {
    say("Find: " + dialog.strText() + (dialog.bMatchCase() ? " (case)" : "") +
        (dialog.bSingleWord() ? " (word)" : ""));
    if (answers_ == std::vector<std::string>{"cancel"}) return dialog.CancelButt_Click();
    const auto [options, text] = halves(object_, ": ");
    const bool any = object_ != options;
    dialog.OKButt_Click(any ? text : object_, any && options.find("case") != std::string::npos,
                        any && options.find("word") != std::string::npos);
  };
  program_.presenter.onResults = [this](SearchResultDialog& dialog) {
    for (const auto& row : dialog.rows()) {
      say(row.type + " | " + row.title + " | " + std::to_string(row.founds) + " | " +
          strFileName(row.smallIcon));
    }
    list_ = &dialog;
    for (const std::string& row : answers_) {
      if (row == "none") {
        dialog.ListView1_Click({});
      } else {
        dialog.ListView1_Click({static_cast<std::size_t>(std::stoi(row))});
      }
    }
    dialog.OKButton_Click();
  };
  program_.presenter.onConnection = [this](ConnectionDialog& dialog) { act(dialog, object_); };
}

/// As "Text2=80, OK": tells what the boxes hold after the changes, and the port that is meant.
void ProgramActor::act(ConnectionDialog& dialog, const std::string& changes) {
  for (const std::string& each : split(changes, ';')) {
    const auto [name, text] = halves(std::string(trimmed(each)), "=");
    for (std::size_t box = 0; box < ConnectionDialog::kBoxes.size(); ++box) {
      if (name == ConnectionDialog::kBoxes[box].name) {
        dialog.change(static_cast<ConnectionDialog::Box>(box), text);
      }
    }
  }
  using Box = ConnectionDialog::Box;
  say(dialog.text(Box::Text1) + " | " + dialog.text(Box::Text2) + " | " + dialog.text(Box::Text3) +
      " | " + dialog.text(Box::Text4) + " | port " + std::to_string(dialog.settings().iPort) +
      (dialog.bChanged() ? ", changed" : ""));
  changes.ends_with("OK") ? dialog.OKButton_Click() : dialog.CancelButton_Click();
}

/// As "drop 1", with the number of a row; tells the rows before and, if they are others, after.
void ProgramActor::act(RecoverDialog& dialog, const std::string& button) {
  const auto tell = [&] {
    for (const RecoverDialog::Row& row : dialog.rows()) {
      say(row.texts[0] + " | " + row.texts[2] + " | " + row.texts[3] + " | " + row.texts[4]);
    }
  };
  tell();
  dialog.onRows = tell;
  const auto [name, row] = halves(button, " ");
  const std::size_t place = row.empty() ? 0 : std::stoul(row) - 1;
  if (name == "make") dialog.RecoverButton_Click(place);
  if (name == "files") dialog.SaveAsFilesButton_Click(place);
  if (name == "drop") dialog.DropButton_Click(place);
}

void ProgramActor::answerWindows() {
  program_.presenter.whileShown = [this](LoadedForm& form) {
    const bool overList = list_ && program_.presenter.lastOwner == list_;
    say("form: " + form.caption() + (overList ? ", over the list" : ""));
    for (const FieldBox& box : form.fields().colControls()) {
      if (object_.empty() ||
          (" " + object_ + " ").find(" " + box.strName + " ") == std::string::npos)
        continue;
      say("  " + halves(box.controlName(), "_").first + " " +
          (box.rows ? box.rows->rowText(1) : toText(box.value)));
    }
  };
  program_.presenter.onSchema = [this](AVDocSchemaDialog& dialog) {
    const auto [name, tick] = halves(object_, "=");
    for (std::size_t row = 1; row <= dialog.rows().size(); ++row) {
      if (dialog.rows()[row - 1].strName == name) dialog.setTicked(row, tick == "on");
    }
    dialog.OKButton_Click();
  };
}

}  // namespace velra::test
