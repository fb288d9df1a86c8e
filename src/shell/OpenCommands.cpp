// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/OpenCommands.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/LongWork.h"
#include "protocol/MainWindow.h"
#include "protocol/ObjectFactory.h"
#include "shell/DocumentClosing.h"
#include "shell/LinkFile.h"
#include "shell/MainTrees.h"
#include "shell/OpenedDocument.h"
#include "shell/TreeClicks.h"
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

void OpenCommands::ShowOpenDialog() {
  const auto file =
      app_.ui.openFileDialog("Open", "XML Files (*.xml)|*.xml|All Files Files (*.*)|*.*");
  if (file && !file->empty()) OpenFile(*file);
}

void OpenCommands::OpenFile(const std::string& path) {
  if (toLower(strExtension(path)) == "xml") {
    OpenDoc(path, true);
    return;
  }
  const std::string link = strReadFirstLine(app_, path);
  if (!link.empty()) {
    OpenDoc(link, false);
  } else {
    app_.ui.messageBox(app_.LoadResString(Message::FileNotValid) + ": " + path,
                       BoxKind::Exclamation);
  }
}

void OpenCommands::OpenDoc(const std::string& path, bool bFileSystem) {
  if (app_.gAVDoc && !closing_.CloseDocument(false)) return;
  app_.gNotFound.clear();
  const auto io = std::make_shared<IOManager>(app_);
  io->setBFileSystem(bFileSystem);
  if (!bFileSystem && !io->bConnectToDM()) return;
  try {
    changeCurrentFolder(folderOf(path));
    openOrFind(path, io);
  } catch (const RunTimeError& error) {
    app_.ui.messageBox(error.description(), BoxKind::Exclamation);
    app_.gAVDoc.reset();
    frmAVDocForm_.reset();
  }
}

std::string OpenCommands::open(const std::string& path, const std::shared_ptr<IOManager>& io) {
  const auto document = std::make_shared<AVDocument>(app_);
  const auto busy = app_.ui.showBusy();
  if (!frmAVDocForm_) frmAVDocForm_ = app_.objectFactory->createForm(ObjectKind::AVDocument);
  return document->strOpen(path, frmAVDocForm_, io);
}

void OpenCommands::openOrFind(const std::string& path, const std::shared_ptr<IOManager>& io) {
  const std::string message = open(path, io);
  if (message.empty()) {
    show();
    return;
  }
  // The file may be an object of a document.
  const std::string document = documentOf(path, *io);
  if (document.empty()) {
    window_.setStrStatusBarText(path + ": " + message);  // not every message names the file
    app_.ui.messageBox(message, BoxKind::Exclamation);
  } else {
    openWithWantedObject(path, document, io);
  }
}

void OpenCommands::openWithWantedObject(const std::string& wanted, const std::string& document,
                                        const std::shared_ptr<IOManager>& io) {
  changeCurrentFolder(folderOf(document));
  const std::string message = open(document, io);
  if (message.empty()) awaitReferences();
  openedDocument(app_)->ShowObjectForm(wanted, window_);
  if (message.empty()) {
    show();
  } else {
    app_.ui.messageBox(message, BoxKind::Exclamation);
  }
}

// Icons come before the nodes that refer to them.
void OpenCommands::show() {
  const auto busy = app_.ui.showBusy();
  {
    const LongWork work(&window_, 1);
    window_.workSteps();
    trees_.AddAllSmallKeyFrames();
    clicks_.ShowAVDocTitle();
  }
  awaitReferences();
}

// Nobody may change an object before.
void OpenCommands::awaitReferences() {
  const LongWork work(&window_, 1);
  window_.workSteps();
  app_.gAVDoc->collObjects().references().bringUpToDate([this] { window_.workWaits(); });
}

void OpenCommands::mnuFileNew() {
  if (app_.gAVDoc && !closing_.CloseDocument(false)) return;
  app_.gAVDoc = NewDocument();
  app_.gNotFound.clear();
  clicks_.ShowAVDocTitle();
  tellDone(app_, window_, Message::New, app_.gAVDoc->strTitle());
}

std::shared_ptr<AVDocument> OpenCommands::NewDocument() {
  auto document = std::make_shared<AVDocument>(app_);
  frmAVDocForm_ = app_.objectFactory->createForm(ObjectKind::AVDocument);
  const auto io = std::make_shared<IOManager>(app_);
  const std::string guid = io->strCreateGUID(document->collObjects(), *document, "AVDocument.xml");
  const std::string schemaPath = app_.strXSDPath();
  if (schemaPath.empty()) {
    app_.ui.messageBox(app_.LoadResString(Message::SchemaNotFound));
    return nullptr;
  }
  const std::string message =
      document->strInitAsNew(guid, schemaPath, "xsd", kUnsavedTitle, frmAVDocForm_, io);
  if (message.empty()) {
    io->joinStore(guid);
    return document;
  }
  app_.ui.messageBox(message);
  return nullptr;
}

}  // namespace velra
