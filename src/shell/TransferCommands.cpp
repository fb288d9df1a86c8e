// SPDX-License-Identifier: GPL-3.0-or-later

// The two commands that take a document out of the file system and back. No server stands on the
// other side: a document taken out is written nowhere, and its files stay as they are.
#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "shell/frmMain.h"
#include "store/IOManager.h"

namespace velra {

void frmMain::transferObjects(bool toFileSystem) {
  for (const ObjectRef& object : app_.gAVDoc->collObjects().all()) {
    if (const auto io = object->io()) io->setBFileSystem(toFileSystem);
    if (object->className() != "Storage") continue;
    object->setStrTitle(app_.ui.inputBox(
        app_.LoadResString(Message::CollocationPrompt) + object->strTitle(), "Collocation"));
  }
  app_.gAVDoc->io()->setBFileSystem(toFileSystem);
  app_.gAVDoc->io()->bConnectToDM();  // there is nothing to connect to
}

// A failed save has been reported, and what was saved before is opened all the same.
void frmMain::saveAndReopen(const std::string& path, bool bFileSystem) {
  {
    const auto busy = app_.ui.showBusy();
    avDocument()->bSaveAs(path);
  }
  bool goOn = false;
  CloseDocument(true, goOn);
  OpenDoc(path, bFileSystem);
}

void frmMain::mnuExportToDB() {
  if (!needsDocument()) return;
  transferObjects(false);
  OpenDocument& document = *app_.gAVDoc;
  const std::string identifier =
      document.io()->strCreateGUID(document.collObjects(), document, document.strGUID());
  saveAndReopen(identifier, false);
}

void frmMain::mnuImportToFS() {
  if (!needsDocument()) return;
  const std::string path = GetFileName("./" + app_.gAVDoc->strTitle());
  if (path.empty()) return;
  std::string folder;
  app_.gAVDoc->setStrTitle(strSplitPath(path, folder));
  transferObjects(true);
  saveAndReopen(path, true);
}

}  // namespace velra
