// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "rescue/RescueWriter.h"
#include "shell/Program.h"
#include "support/Scene.h"

namespace velra::test {

/// A person at the program without windows, over a copy of the sample. Objects are named by their
/// files, as "version1", or "document"; trees are "left" and "right"; paths begin in the folder
/// "~".
class ProgramActor : public Actor {
 public:
  ProgramActor();

 protected:
  void prepare(const std::vector<std::string>& answers) override;
  std::vector<std::string> takeShown() override;

 private:
  using Files = std::map<std::string, std::string>;

  void learnFileMenu();
  void learnEditMenu();
  void learnDialogs();
  void learnToPrepare();
  void learnToLook();
  void answerWindows();

  ObjectRef object(const std::string& name) const;
  ExpressionRef expression(const std::string& name) const { return as<Expression>(object(name)); }
  static TreeId treeOf(const std::string& words) {
    return words.starts_with("left") ? TreeId::tvwMainTree : TreeId::tvwExpression;
  }
  void click(const std::string& treeAndName, MouseButton button);
  void act(ConnectionDialog& dialog, const std::string& changes);
  void act(RecoverDialog& dialog, const std::string& button);
  void showMenus();
  void showObject(const DescribedObject& object);
  void watch();
  void showWatched();

  const TemporaryFolder state_;  // where a store is, if there is one
  std::unique_ptr<RescueWriter> rescue_;
  Program program_;
  std::vector<std::string> answers_;
  std::string object_;               // of the command that runs
  const FormOwner* list_ = nullptr;  // of the last search
  Files files_;
  std::vector<std::pair<std::string, std::weak_ptr<RegisteredObject>>> watched_;
};

}  // namespace velra::test
