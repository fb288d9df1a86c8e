// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MainMenus.h"

#include <chrono>

#include "app/ApplicationModule.h"
#include "objects/AVDocument.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "protocol/OpenDocument.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueWriter.h"
#include "shell/MainWindowFace.h"
#include "shell/OpenedDocument.h"
#include "store/IOManager.h"

namespace velra {

namespace {

MenuState withAddEntries(MenuState menus, bool addChild, bool addMainExpr) {
  menus.mnuAddChild = addChild;
  menus.mnuAddMainExpr = addMainExpr;
  return menus;
}

MenuState menusOf(const MenuState& menus, const DescribedObject& object, bool fromMainTree) {
  const ObjectKind kind = object.kind();
  if (kind == ObjectKind::AVDocument || kind == ObjectKind::Media)
    return withAddEntries(menus, true, false);
  if (kind == ObjectKind::Storage || isExpression(kind)) {
    return withAddEntries(menus, false, false);
  }
  const auto* version = as<const Version>(&object);
  if (!version) return menus;
  if (fromMainTree) return withAddEntries(menus, true, false);
  MenuState open = withAddEntries(menus, false, true);
  open.mnuAddMainVideo = !version->vdMainVideo();
  open.mnuAddMainAudio = !version->auMainAudio();
  open.mnuAddMainTranscript = !version->trMainTranscript();
  return open;
}

// The menu does not wait long for a store that is busy: then it stays as it was.
bool anyUnsavedWork(const ApplicationModule& app, bool otherwise) {
  constexpr std::chrono::milliseconds kMenuPatience{30};
  if (!app.rescue || !app.rescue->finish(kMenuPatience)) return otherwise;
  bool any = false;
  app.rescue->run([&](RescueStore& store) { any = hasRestorableWork(store); });
  return any;
}

}  // namespace

MainMenus::MainMenus(ApplicationModule& app, MainWindowFace& face) : app_(app), face_(face) {
  state_.language = app_.iLanguage;
}

void MainMenus::apply(const MenuState& state) {
  if (state_ == state) return;
  state_ = state;
  face_.showMenuState(state_);
}

void MainMenus::mnuFile_Click() {
  MenuState menus = state_;
  const std::shared_ptr<IOManager> io = documentIsOpen(app_) ? app_.gAVDoc->io() : nullptr;
  menus.mnuExportToDB = io && io->bFileSystem();
  menus.mnuImportToFS = io && !io->bFileSystem();
  menus.mnuFileExportAs = io != nullptr;
  menus.mnuFileImport = io != nullptr;
  menus.mnuFileFindShots = io != nullptr;
  menus.mnuFileIndependent = io && !openedDocument(app_)->copiedFolder().other.empty();
  menus.mnuFileRecover = anyUnsavedWork(app_, menus.mnuFileRecover);
  apply(menus);
}

void MainMenus::ContexMenuManager(const DescribedObject& object, bool fromMainTree) {
  apply(menusOf(state_, object, fromMainTree));
}

void MainMenus::setLanguage(std::int32_t language) {
  if (state_.language == language) return;
  MenuState menus = state_;
  menus.language = language;
  apply(menus);
  app_.iLanguage = language;
  if (language == ApplicationModule::kCrossLanguageOff) {
    app_.ui.messageBox(app_.LoadResString(Message::DisablingCrossLanguage));
  }
}

}  // namespace velra
