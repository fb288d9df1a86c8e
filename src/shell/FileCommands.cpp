// SPDX-License-Identifier: GPL-3.0-or-later

// The File menu of the main window: the only code that replaces the open document.
#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/ObjectFactory.h"
#include "shell/LinkFile.h"
#include "shell/frmMain.h"
#include "store/IOManager.h"

namespace velra {

namespace {

// Relative identifiers start from the document's folder, which is found from the names alone: it
// holds the data folder and the document beside it. "" for a file that lies in no data folder.
std::string folderAboveData(const std::string& path) {
  const std::string ending = "_files";
  const std::string dataFolder = strAbsolutePath(folderOf(path));
  if (!dataFolder.ends_with(ending)) return {};
  const std::string document = dataFolder.substr(0, dataFolder.size() - ending.size());
  std::string folder = folderOf(document);
  for (const std::string& name : colListFiles(folder + "*.xml")) {
    if (folder + name.substr(0, name.rfind('.')) == document) return folder;
  }
  return {};
}

// The document of an object's file. The references on the way up start where the document lies.
std::string documentOf(const std::string& path, IOManager& io) {
  const std::string above = folderAboveData(path);
  if (!above.empty()) changeCurrentFolder(above);
  return io.strRetrieveAVDocGUIDFromGUID(path);
}

}  // namespace

// A document that failed to open stays set, with nothing registered.
bool frmMain::documentIsOpen() const {
  return app_.gAVDoc && app_.gAVDoc->collObjects().Count() > 0;
}

bool frmMain::needsDocument() {
  if (documentIsOpen()) return true;
  app_.ui.messageBox("No document is open.", BoxKind::Exclamation);
  return false;
}

// The status line names the command as its menu does, and what came of it.
void frmMain::tellDone(Message command, const std::string& outcome) {
  std::string caption = replaceAll(app_.LoadResString(command), "&", "");
  setStrStatusBarText(replaceAll(std::move(caption), "...", "") + ": " + outcome);
}

void frmMain::mnuFile_Click() {
  MenuState menus = menus_;
  const std::shared_ptr<IOManager> io = documentIsOpen() ? app_.gAVDoc->io() : nullptr;
  menus.mnuExportToDB = io && io->bFileSystem();
  menus.mnuImportToFS = io && !io->bFileSystem();
  applyMenus(menus);
}

void frmMain::ShowOpenDialog() {
  const auto file =
      app_.ui.openFileDialog("Open", "XML Files (*.xml)|*.xml|All Files Files (*.*)|*.*");
  if (file && !file->empty()) OpenFile(*file);
}

void frmMain::OpenFile(const std::string& strFile) {
  if (toLower(strExtension(strFile)) == "xml") {
    OpenDoc(strFile, true);
    return;
  }
  const std::string link = strReadFirstLine(app_, strFile);
  if (!link.empty()) {
    OpenDoc(link, false);
  } else {
    app_.ui.messageBox(app_.LoadResString(Message::FileNotValid) + ": " + strFile,
                       BoxKind::Exclamation);
  }
}

void frmMain::OpenDoc(const std::string& strDocGUID, bool bFileSystem) {
  if (app_.gAVDoc) {
    bool goOn = false;
    CloseDocument(false, goOn);
    if (!goOn) return;
  }
  app_.gAVDoc = std::make_shared<AVDocument>(app_);
  app_.gNotFound.clear();
  const auto io = std::make_shared<IOManager>(app_);
  io->setBFileSystem(bFileSystem);
  if (!bFileSystem && !io->bConnectToDM()) {
    app_.gAVDoc.reset();
    return;
  }
  try {
    changeCurrentFolder(folderOf(strDocGUID));
    openOrFindDocument(strDocGUID, io);
  } catch (const RunTimeError& error) {
    app_.ui.messageBox(error.description(), BoxKind::Exclamation);
    app_.gAVDoc.reset();
    frmAVDocForm_.reset();
  }
}

std::string frmMain::openDocument(const std::string& path, const std::shared_ptr<IOManager>& io) {
  const auto busy = app_.ui.showBusy();
  std::string message = app_.gAVDoc->strOpen(path, frmAVDocFormInstance(), io);
  // Who opens a document waits anyway; who removes the first node of it should not.
  if (message.empty()) app_.gAVDoc->collObjects().references().bringUpToDate();
  return message;
}

void frmMain::openOrFindDocument(const std::string& path, const std::shared_ptr<IOManager>& io) {
  const std::string message = openDocument(path, io);
  if (message.empty()) {
    showOpenedDocument();
    return;
  }
  // The file may be an object of a document.
  const std::string document = documentOf(path, *io);
  if (document.empty()) {
    setStrStatusBarText(path + ": " + message);  // not every message names the file
    app_.ui.messageBox(message, BoxKind::Exclamation);
  } else {
    openWithWantedObject(path, document, io);
  }
}

void frmMain::openWithWantedObject(const std::string& wanted, const std::string& document,
                                   const std::shared_ptr<IOManager>& io) {
  changeCurrentFolder(folderOf(document));
  app_.gAVDoc = std::make_shared<AVDocument>(app_);
  const std::string message = openDocument(document, io);
  avDocument()->ShowObjectForm(wanted, *this);
  if (message.empty()) {
    showOpenedDocument();
  } else {
    app_.ui.messageBox(message, BoxKind::Exclamation);
  }
}

// Icons come before the nodes that refer to them.
void frmMain::showOpenedDocument() {
  AddAllSmallKeyFrames();
  ShowAVDocTitle();
}

bool frmMain::saveQuestionAnswered() {
  const auto answer = app_.ui.askYesNoCancel(app_.LoadResString(Message::SaveModifications) + " " +
                                             app_.gAVDoc->strTitle() + "?");
  if (answer == Answer::Yes) {
    const auto busy = app_.ui.showBusy();
    app_.gAVDoc->bSave();
  }
  return answer != Answer::Cancel;
}

void frmMain::CloseDocument(bool bNoPrompt, bool& goOn) {
  const bool changed = !app_.gAVDoc->collObjects().changedObjects().empty();
  goOn = !changed || bNoPrompt || saveQuestionAnswered();
  if (!goOn) return;
  releaseDocument();
  ResetListImageExpression();
}

void frmMain::releaseDocument() {
  tvwMainTree.clear();
  tvwExpression.clear();
  if (app_.gAVDoc) MarkUnsavedMediaObjects();
  app_.gAVDoc.reset();
}

// Pictures that no saved object points at go with the document.
void frmMain::MarkUnsavedMediaObjects() {
  for (const auto& [number, object] : app_.gAVDoc->collObjects().sequence()) {
    if (object->className() != "MediaObject" || !object->bChanged()) continue;
    app_.gAVDoc->io()->RemoveGUID(object->strGUID());
  }
}

void frmMain::mnuFileNew() {
  if (app_.gAVDoc) {
    bool goOn = false;
    CloseDocument(false, goOn);
    if (!goOn) return;
  }
  app_.gAVDoc = NewDocument();
  app_.gNotFound.clear();
  ShowAVDocTitle();
  tellDone(Message::New, app_.gAVDoc->strTitle());
}

std::shared_ptr<AVDocument> frmMain::NewDocument() {
  auto document = std::make_shared<AVDocument>(app_);
  frmAVDocForm_ = app_.objectFactory->createForm("AVDocument");
  const auto io = std::make_shared<IOManager>(app_);
  const std::string guid = io->strCreateGUID(document->collObjects(), *document, "AVDocument.xml");
  const std::string schemaPath = app_.strXSDPath();
  if (schemaPath.empty()) {
    app_.ui.messageBox(app_.LoadResString(Message::SchemaNotFound));
    return nullptr;
  }
  const std::string message =
      document->strInitAsNew(guid, schemaPath, "xsd", kUnsavedTitle, frmAVDocForm_, io);
  if (message.empty()) return document;
  app_.ui.messageBox(message);
  return nullptr;
}

}  // namespace velra
