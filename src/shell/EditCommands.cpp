// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/EditCommands.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "objects/LadderObject.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/OpenDocument.h"
#include "shell/MainTrees.h"
#include "shell/MovieFit.h"
#include "shell/TreeClicks.h"
#include "store/IOManager.h"

namespace velra {

namespace {

constexpr const char* kMovieFilter =
    "Video Files (*.avi;*.mpeg;*.mpg;*.asf)|*.avi;*.mpeg;*.mpg;*.asf|";

struct MainExpressionTexts {
  ObjectKind kind;
  Message prompt;
  Message title;
};
constexpr MainExpressionTexts kMainExpressions[] = {
    {ObjectKind::Video, Message::MainVideoPrompt, Message::MainVideoName},
    {ObjectKind::Audio, Message::MainAudioPrompt, Message::MainAudioName},
    {ObjectKind::Transcript, Message::MainTranscriptPrompt, Message::MainTranscriptName}};

}  // namespace

EditCommands::EditCommands(ApplicationModule& app, FormOwner& window, MainTrees& trees,
                           const TreeClicks& clicks)
    : app_(app),
      window_(window),
      trees_(trees),
      clicks_(clicks),
      mainTree_(trees.tree(TreeId::tvwMainTree)),
      exprTree_(trees.tree(TreeId::tvwExpression)) {}

ObjectRef EditCommands::selectedObject() const {
  const TreeNode* node = clicks_.selectedNode();
  return mainTree_.root() && node ? node->Tag : nullptr;
}

void EditCommands::mnuEditMetadata() {
  if (const ObjectRef object = selectedObject()) object->ShowForm(window_);
}

void EditCommands::mnuEditAttributes() {
  if (const ObjectRef object = selectedObject()) object->EditAttributesForm(window_);
}

std::string EditCommands::askNewChild(const DescribedObject& parent) {
  const ObjectKind kind = parent.kind();
  if (kind == ObjectKind::AVDocument) {
    return app_.ui.inputBox(app_.LoadResString(Message::VersionTitlePrompt),
                            app_.LoadResString(Message::VersionTitle));
  }
  if (kind == ObjectKind::Version) {
    return app_.ui.inputBox(app_.LoadResString(Message::MediaFormatPrompt),
                            app_.LoadResString(Message::MediaFormat));
  }
  if (kind == ObjectKind::Media) return askMovie();
  app_.ui.beep();
  return {};
}

std::string EditCommands::askMovie() {
  if (!app_.gAVDoc->io()->bFileSystem()) return {};
  const auto chosen =
      app_.ui.openFileDialog(app_.LoadResString(Message::StorageMoviePrompt), kMovieFilter);
  if (!chosen) return {};
  // File dialogs may leave another folder as the current one.
  changeCurrentFolder(folderOf(app_.gAVDoc->strGUID()));
  return bFileExists(*chosen) ? *chosen : std::string();
}

void EditCommands::mnuAddChild() {
  const TreeNode* node = mainTree_.selected();
  if (!mainTree_.root() || !node) return;
  const ObjectRef object = node->Tag;
  append(object, askNewChild(*object));
}

void EditCommands::appendStorage(const ObjectRef& media, const std::string& movie) {
  if (app_.gAVDoc->io()->bFileSystem() && bFileExists(movie)) append(media, movie);
}

void EditCommands::append(const ObjectRef& object, const std::string& answer) {
  if (answer.empty()) return;
  const auto version = versionHolding(app_.gAVDoc->collObjects(), *object);
  const bool hadDuration = !version || version->dDuration() != 0;
  if (object->kind() == ObjectKind::Media && !movieFits(app_, *object, answer)) return;
  const auto parent = as<LadderObject>(object);
  if (!parent) return;
  const std::size_t before = parent->colChilds().size();
  parent->AddChild(answer);
  const bool refused = parent->colChilds().size() == before;
  if (refused && !hadDuration) version->ResetDuration();  // that of a movie which is not there
  trees_.ResetTree(TreeId::tvwMainTree, nullptr);
  mainTree_.ExpandToObject(*object);
  mainTree_.makeCurrent(*object);
}

void EditCommands::AddMainExpr(ObjectKind kind) {
  const TreeNode* node = exprTree_.selected();
  if (!mainTree_.root() || !node) return;
  const auto version = as<Version>(node->Tag);
  if (!version) return;
  const std::string path = version->strGetMediaObjectPath();
  if (path.empty()) {
    app_.ui.messageBox(app_.LoadResString(Message::StorageFirst));
    return;
  }
  std::string name;
  for (const MainExpressionTexts& texts : kMainExpressions) {
    if (kind != texts.kind) continue;
    name = app_.ui.inputBox(app_.LoadResString(texts.prompt), app_.LoadResString(texts.title));
  }
  if (name.empty()) return;
  const auto duration = durationOf(app_, path);
  if (!duration) return;
  version->AddMainExpression(name, kind, 0, *duration);
  version->setDDuration(*duration);
  trees_.ResetTree(TreeId::tvwExpression, version);
  exprTree_.makeCurrent(*version);
}

void EditCommands::DeleteNode(TreeId id) {
  const TreeNode* node = trees_.tree(id).selected();
  if (!node || node->Tag->kind() == ObjectKind::AVDocument) return;
  const bool confirmed =
      app_.ui.askYesNo(app_.LoadResString(Message::AskRemoveObject) + " " + node->Text + " " +
                       app_.LoadResString(Message::AndAllItsChildren));
  if (!confirmed) return;
  ObjectRef object = node->Tag;
  const bool wasVersion = object->kind() == ObjectKind::Version;
  {
    const auto busy = app_.ui.showBusy();
    const std::string message = object->strRemoveAllChilds();
    if (!message.empty()) {
      app_.ui.messageBox(message);
      return;
    }
    trees_.RemoveIcon(object->strGUID());
    app_.gAVDoc->RemoveObject(object);
  }
  showTreesWithout(id, wasVersion);
}

void EditCommands::showTreesWithout(TreeId id, bool wasVersion) {
  if (id == TreeId::tvwExpression && !wasVersion) {
    const ObjectRef version = exprTree_.root()->Tag;
    trees_.ResetTree(TreeId::tvwExpression, version);
    return;
  }
  trees_.ResetTree(TreeId::tvwMainTree, nullptr);
  trees_.ResetTree(TreeId::tvwExpression, nullptr);
}

}  // namespace velra
