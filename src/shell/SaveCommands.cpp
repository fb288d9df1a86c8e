// SPDX-License-Identifier: GPL-3.0-or-later

// The commands of the File menu that write the open document.
#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "shell/frmMain.h"
#include "store/DataFolder.h"
#include "store/IOManager.h"

namespace velra {

void frmMain::mnuFileSave() {
  if (!app_.gAVDoc) return;
  if (app_.gAVDoc->strTitle() == kUnsavedTitle) {
    SaveDocumentAs();
    return;
  }
  const auto busy = app_.ui.showBusy();
  app_.gAVDoc->bSave();
}

void frmMain::mnuFileSaveAs() {
  if (needsDocument()) SaveDocumentAs();
}

// A document of another ending could not be opened again. The dialog has asked about the name
// without it.
std::string frmMain::GetFileName(const std::string& proposed) {
  std::string path =
      app_.ui.saveFileDialog("Save As", "All Files (*.xml)|*.xml", proposed).value_or("");
  if (path.empty() || toLower(strExtension(path)) == "xml") return path;
  path += ".xml";
  const bool free =
      !bFileExists(path) || app_.ui.askYesNo(path + " already exists. Do you want to replace it?");
  return free ? path : GetFileName(path);
}

void frmMain::SaveDocumentAs() {
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
    saved = avDocument()->bSaveAs(path);
  }
  if (!saved) {
    // The title is the cataloguer's again, and a document without a file stays one.
    app_.gAVDoc->setStrTitle(title);
    return;
  }
  bool goOn = false;
  CloseDocument(true, goOn);
  removeFolderIfEmpty(dataFolderOf(former));
  app_.gAVDoc = std::make_shared<AVDocument>(app_);
  app_.gNotFound.clear();
  const std::string message = openDocument(path, std::make_shared<IOManager>(app_));
  AddAllSmallKeyFrames();
  if (message.empty()) {
    ShowAVDocTitle();
    tellDone(Message::SaveAs, path);
  } else {
    app_.ui.messageBox(message, BoxKind::Exclamation);
    app_.gAVDoc.reset();
  }
}

}  // namespace velra
