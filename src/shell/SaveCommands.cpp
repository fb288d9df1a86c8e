// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SaveCommands.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/LongWork.h"
#include "shell/DocumentClosing.h"
#include "shell/OpenCommands.h"
#include "shell/OpenedDocument.h"
#include "store/DataFolder.h"
#include "store/IOManager.h"

namespace velra {

void SaveCommands::mnuFileSave() {
  if (!app_.gAVDoc) return;
  if (app_.gAVDoc->strTitle() == kUnsavedTitle) {
    SaveDocumentAs();
    return;
  }
  const auto busy = app_.ui.showBusy();
  app_.gAVDoc->bSave();
}

void SaveCommands::mnuFileSaveAs() {
  if (needsDocument(app_)) SaveDocumentAs();
}

// A document of another ending could not be opened again. The dialog has asked about the name
// without it.
std::string SaveCommands::GetFileName(const std::string& proposed) {
  std::string path =
      app_.ui.saveFileDialog("Save As", "All Files (*.xml)|*.xml", proposed).value_or("");
  if (path.empty() || toLower(strExtension(path)) == "xml") return path;
  path += ".xml";
  const bool free =
      !bFileExists(path) || app_.ui.askYesNo(path + app_.LoadResString(Message::AskReplace));
  return free ? path : GetFileName(path);
}

// What a Save As held goes behind it, and then a large document goes.
void SaveCommands::paint() {
  const LongWork work(&window_, 1);
  window_.workSteps();
}

void SaveCommands::SaveDocumentAs() {
  std::string folder;
  const std::string former = app_.gAVDoc->strGUID();
  const std::string base = strSplitPath(former, folder);
  const std::string path = GetFileName(folder + base);
  if (path.empty()) return;
  const std::string title = app_.gAVDoc->strTitle();
  app_.gAVDoc->setStrTitle(strSplitPath(path, folder));
  bool saved = false;
  {
    const auto busy = app_.ui.showBusy();
    saved = openedDocument(app_)->bSaveAs(path);
  }
  if (!saved) {
    // The title is the cataloguer's again, and a document without a file stays one.
    app_.gAVDoc->setStrTitle(title);
    return;
  }
  paint();
  closing_.CloseDocument(true);
  removeFolderIfEmpty(dataFolderOf(former));
  app_.gNotFound.clear();
  const std::string message = opening_.open(path, std::make_shared<IOManager>(app_));
  if (message.empty()) {
    opening_.show();
    tellDone(app_, window_, Message::SaveAs, path);
  } else {
    app_.ui.messageBox(message, BoxKind::Exclamation);
    app_.gAVDoc.reset();
  }
}

}  // namespace velra
