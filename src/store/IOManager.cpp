// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/IOManager.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlWriter.h"
#include "protocol/OpenDocument.h"
#include "schema/SchemaFile.h"
#include "store/ObjectRegistry.h"

namespace velra {

IOManager::IOManager(ApplicationModule& app) : app_(app) {}

IOManager::~IOManager() {
  strSync();
}

void IOManager::RemoveGUID(const std::string& strGUIDToRemove) {
  colGUIDToRemove_.push_back(strGUIDToRemove);
}

void IOManager::keepFilesOf(ObjectRegistry& collObjects) {
  // The picture of a removed segment stays registered; its file is there, so its number is not
  // free.
  std::erase_if(colGUIDToRemove_, [&](const std::string& guid) {
    const ObjectRef object = collObjects.find(guid);
    return object && object->className() != "MediaObject";
  });
}

std::string IOManager::strCreateGUID(ObjectRegistry& collObjects, const DescribedObject& objNew,
                                     const std::string& strAVDocPathName) {
  return strCreateGUID(collObjects, objNew.className(), "xml", strAVDocPathName);
}

std::string IOManager::strCreateGUID(ObjectRegistry& collObjects, const std::string& className,
                                     const std::string& extension,
                                     const std::string& strAVDocPathName) {
  if (!bFileSystem_) return {};
  std::string folder;
  const std::string base = strSplitPath(strAVDocPathName, folder);
  if (className == "AVDocument") return withSeparator(strAbsolutePath(folder)) + base + ".xml";
  std::string message = strMakeDataFolder(strAVDocPathName);
  if (!message.empty()) return message;
  const std::string prefix = dataFolderOf(strAVDocPathName) + base + "_" + asciiLower(className);
  return *promised_.insert(collObjects.numbers().take(prefix, "." + extension)).first;
}

std::string IOManager::strOpen(XmlDocument& objDOMDocument, const std::string& strGUID) {
  objDOMDocument = XmlDocument();
  if (!bFileSystem_) return {};
  if (!bFileExists(strGUID)) return app_.LoadResString(1131) + " " + strGUID;
  return objDOMDocument.load(strGUID) ? std::string() : "XML Parser: " + objDOMDocument.reason();
}

std::string IOManager::strSave(const XmlWriter& objDOMDocument, const std::string& strGUID) {
  saveFailure_.clear();
  if (!bFileSystem_) return {};
  // A file that came under a promised name since is another program's.
  saveFailure_ = isPromised(strGUID) ? writeNewFile(strGUID, objDOMDocument.bytes())
                                     : writeFileInPlace(strGUID, objDOMDocument.bytes());
  if (!saveFailure_.empty()) return saveFailure_ += " (" + strGUID + ")";
  promised_.erase(strGUID);
  unflushedFolder_ = folderOf(strGUID);
  return {};
}

std::string IOManager::strFlush() {
  if (unflushedFolder_.empty()) return {};
  return syncFolder(std::exchange(unflushedFolder_, {}));
}

bool IOManager::bGUIDComp(const std::string& strGUID1, const std::string& strGUID2) const {
  return bFileSystem_ && bSamePath(strGUID1, strGUID2);
}

std::string IOManager::strSync() {
  std::string failed;
  std::string lastReason;
  for (const std::string& guid : std::exchange(colGUIDToRemove_, {})) {
    const std::string reason = strDeleteFile(guid);
    if (reason.empty()) continue;
    failed += (failed.empty() ? "" : " ") + guid;
    lastReason = reason;
  }
  return failed.empty() ? std::string() : failed + ": " + lastReason;
}

std::string IOManager::strDeleteFile(const std::string& strGUID) {
  return bFileSystem_ && !isPromised(strGUID) ? deleteFile(strGUID) : std::string();
}

void IOManager::withdraw(const std::string& strGUID) {
  strDeleteFile(strGUID);
  promised_.erase(strGUID);
  if (naming_) naming_->fileWent(strGUID);
}

std::string IOManager::strWhatIs(const std::string& strGUID) {
  if (!bFileSystem_) return {};
  XmlDocument document;
  if (document.load(strGUID)) return std::string(document.documentElement().baseName());
  app_.ui.messageBox("XML Parser: " + document.reason(), BoxKind::Exclamation);
  return {};
}

std::string IOManager::ExtractTypeFromURN(const std::string& strURN) {
  const auto pieces = split(strURN, ':');
  if (pieces.size() < 3) raise(kSubscriptOutOfRange);
  return pieces[2];
}

void IOManager::MoveObject(const std::string& source, const std::string& destination) {
  if (!bFileSystem_) return;
  const std::string from = strAbsolutePath(source);
  const std::string to = strAbsolutePath(destination);
  MoveFileTo(from, to);
  if (naming_) naming_->fileWent(from);
  if (naming_) naming_->fileCame(to);
  promised_.erase(to);
}

void IOManager::CopyObject(const std::string& source, const std::string& destination) {
  if (!bFileSystem_) return;
  const std::string to = strAbsolutePath(destination);
  // Copying replaces, and what has come under a promised name is another program's.
  if (isPromised(to) && bFileExists(to)) raise(kFileAlreadyExists, to);
  CopyFileTo(strAbsolutePath(source), to);
  if (naming_) naming_->fileCame(to);
  promised_.erase(to);
}

bool IOManager::checkConsistency() const {
  for (const auto& [folder, scan] : scans_) {
    if (!scan.checkConsistency()) return false;
  }
  return true;
}

IOManager::Opening::Opening(IOManager& io) : io_(io) {
  if (io_.app_.gAVDoc) {
    hold_ = std::make_unique<DocumentSchemas::Hold>(io_.app_.gAVDoc->schemas());
  }
  if (io_.openings_++ > 0) return;
  io_.fresh_.clear();
  io_.unlisted_.clear();
}

IOManager::Opening::~Opening() {
  if (--io_.openings_ > 0) return;
  for (auto& [folder, scan] : io_.scans_) scan.endOpening();
}

IOManager::Naming::Naming(IOManager& io, ObjectRegistry& collObjects,
                          const std::string& strAVDocPathName)
    : io_(io), listing_(collObjects.numbers(), dataFolderOf(strAVDocPathName)) {
  io_.naming_ = &listing_;
}

IOManager::Naming::~Naming() {
  io_.naming_ = nullptr;
}

}  // namespace velra
