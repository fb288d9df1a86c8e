// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TransferCommands.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "objects/AVDocument.h"
#include "objects/Storage.h"
#include "platform/UserInterface.h"
#include "shell/DocumentClosing.h"
#include "shell/OpenCommands.h"
#include "shell/OpenedDocument.h"
#include "shell/SaveCommands.h"
#include "store/IOManager.h"

namespace velra {

void TransferCommands::transferObjects(bool toFileSystem) {
  for (const RegisteredRef& object : app_.gAVDoc->collObjects().all()) {
    if (const auto io = object->io()) io->setBFileSystem(toFileSystem);
    auto* storage = as<Storage>(object.get());
    if (!storage) continue;
    storage->setStrTitle(app_.ui.inputBox(
        app_.LoadResString(Message::CollocationPrompt) + storage->strTitle(), "Collocation"));
  }
  app_.gAVDoc->io()->setBFileSystem(toFileSystem);
  app_.gAVDoc->io()->bConnectToDM();  // there is nothing to connect to
}

bool TransferCommands::bSaveUnder(const std::string& path) {
  const auto busy = app_.ui.showBusy();
  return openedDocument(app_)->bSaveAs(path);
}

void TransferCommands::reopen(const std::string& path, bool bFileSystem) {
  closing_.CloseDocument(true);
  opening_.OpenDoc(path, bFileSystem);
}

void TransferCommands::mnuExportToDB() {
  if (!needsDocument(app_)) return;
  transferObjects(false);
  OpenDocument& document = *app_.gAVDoc;
  const std::string identifier =
      document.io()->strCreateGUID(document.collObjects(), document, document.strGUID());
  bSaveUnder(identifier);
  reopen(identifier, false);
}

void TransferCommands::mnuImportToFS() {
  if (!needsDocument(app_)) return;
  const std::string path = saving_.GetFileName("./" + app_.gAVDoc->strTitle());
  if (path.empty()) return;
  std::string folder;
  const std::string title = app_.gAVDoc->strTitle();
  app_.gAVDoc->setStrTitle(strSplitPath(path, folder));
  transferObjects(true);
  if (bSaveUnder(path)) {
    reopen(path, true);
  } else {
    app_.gAVDoc->setStrTitle(title);  // it stays open: all of it may be in memory alone
  }
}

}  // namespace velra
