// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ScriptedPresenter.h"
#include "app/ApplicationModule.h"
#include "objects/AVDocument.h"
#include "objects/Version.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "protocol/Expression.h"
#include "shell/Factory.h"
#include "shell/Start.h"
#include "shell/frmMain.h"
#include "support/SampleFolder.h"
#include "support/ScriptedUserInterface.h"

namespace velra::test {

/// A form of an expression that only remembers that it was shown.
class QuietForm : public ObjectForm {
 public:
  explicit QuietForm(std::vector<std::string>& shown) : shown_(shown) {}
  void setObject(const std::shared_ptr<DescribedObject>& object) override { object_ = object; }
  void Show(FormOwner&) override {
    if (const auto object = object_.lock()) shown_.push_back(object->strTitle());
  }
  void Unload() override {}

 private:
  std::vector<std::string>& shown_;
  std::weak_ptr<DescribedObject> object_;
};

/// The whole program without its windows, over a copy of the sample in a temporary folder.
class Program {
 public:
  Program() {
    const std::string data = VELRA_SOURCE_DIR "/data";
    settings.write(ApplicationModule::kMachineSection, "XSDPath", data + "/schema/velra.xsd");
    settings.write(ApplicationModule::kMachineSection, "ThematicKeywordsPath",
                   data + "/ThematicKeywords.xml");
    LoadThematicKeywords(app);
    mainForm.setDialogPresenter(&presenter);
  }
  ~Program() { app.gAVDoc.reset(); }

  std::string sample() const { return folder / "sample/lighthouse.xml"; }
  std::shared_ptr<AVDocument> document() const { return as<AVDocument>(app.gAVDoc); }
  std::shared_ptr<Version> version(std::size_t position) const {
    return as<Version>(document()->colChilds().at(position - 1));
  }
  /// The registered object of the sample whose file is of that name, as in "version1".
  ObjectRef object(const std::string& name) const {
    const std::string file = "sample/lighthouse_files/lighthouse_" + name + ".xml";
    return as<DescribedObject>(app.gAVDoc->loadedObject(folder / file));
  }
  ExpressionRef expression(const std::string& name) const { return as<Expression>(object(name)); }
  /// A file of the sample.
  std::string read(const std::string& name) const { return folder.read("sample/" + name); }

  /// Clicks the node of an object with the left button.
  void click(TreeId tree, const DescribedObject& object) {
    mainForm.treeMouseDown(tree, kLeftButton);
    mainForm.nodeClicked(tree, *mainForm.tree(tree).find(object));
  }
  /// The texts of a tree, each with two blanks for each level.
  std::vector<std::string> texts(TreeId tree) {
    std::vector<std::string> lines;
    mainForm.tree(tree).walk([&](TreeNode& node) {
      std::string indent;
      for (const TreeNode* up = node.Parent; up; up = up->Parent) indent += "  ";
      lines.push_back(indent + node.Text);
      return true;
    });
    return lines;
  }

  SampleFolder folder;
  ScriptedUserInterface ui;
  ScriptedPresenter presenter;
  std::vector<std::string> expressionForms;
  MachineSettings settings{folder / "machine.ini"};
  UserSettings userSettings{folder / "user.ini"};
  ApplicationModule app{ui, MessageCatalogue(InterfaceLanguage::Default), settings, userSettings};
  Factory factory{app, presenter, [this] { return std::make_shared<QuietForm>(expressionForms); }};
  frmMain mainForm{app};
};

}  // namespace velra::test
