#include "store/IOManager.h"

#include <sys/random.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "platform/UserInterface.h"
#include "platform/XmlDocument.h"
#include "platform/XmlWriter.h"
#include "protocol/OpenDocument.h"
#include "schema/SchemaFile.h"
#include "store/ObjectRegistry.h"

namespace velra {

std::string dataFolderOf(const std::string& strAVDocPathName) {
  std::string folder;
  const std::string base = strSplitPath(strAVDocPathName, folder);
  return withSeparator(strAbsolutePath(folder)) + base + "_files/";
}

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
  const std::string dataFolder = dataFolderOf(strAVDocPathName);
  if (!bFolderExists(dataFolder)) {
    std::string message = strMakeFolder(app_, dataFolder);
    if (!message.empty()) return message;
  }
  collObjects.setFreedListener([self = weak_from_this()](const std::string& key) {
    if (const auto io = self.lock()) io->numbers_.freed(key);
  });
  return numbers_.take(collObjects, dataFolder + base + "_" + asciiLower(className),
                       "." + extension);
}

std::string IOManager::strOpen(XmlDocument& objDOMDocument, const std::string& strGUID) {
  objDOMDocument = XmlDocument();
  if (!bFileSystem_) return {};
  if (!bFileExists(strGUID)) return app_.LoadResString(1131) + " " + strGUID;
  return objDOMDocument.load(strGUID) ? std::string() : "XML Parser: " + objDOMDocument.reason();
}

std::string IOManager::strSave(const XmlWriter& objDOMDocument, const std::string& strGUID) {
  if (!bFileSystem_) return {};
  const std::string failure = writeFileInPlace(strGUID, objDOMDocument.bytes());
  if (!failure.empty()) return failure + " (" + strGUID + ")";
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
  return bFileSystem_ ? deleteFile(strGUID) : std::string();
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
  numbers_.fileWent(from);
  numbers_.fileCame(to);
}

void IOManager::CopyObject(const std::string& source, const std::string& destination) {
  if (!bFileSystem_) return;
  const std::string to = strAbsolutePath(destination);
  CopyFileTo(strAbsolutePath(source), to);
  numbers_.fileCame(to);
}

bool IOManager::checkConsistency(ObjectRegistry& collObjects) const {
  for (const auto& [folder, scan] : scans_) {
    if (!scan.checkConsistency()) return false;
  }
  return numbers_.checkConsistency(collObjects);
}

IOManager::Opening::Opening(IOManager& io) : io_(io) {
  if (io_.app_.gAVDoc) {
    hold_ = std::make_unique<DocumentSchemas::Hold>(io_.app_.gAVDoc->schemas());
  }
  if (io_.openings_++ == 0) io_.fresh_.clear();
}

IOManager::Opening::~Opening() {
  if (--io_.openings_ > 0) return;
  for (auto& [folder, scan] : io_.scans_) scan.endOpening();
}

IOManager::Naming::Naming(IOManager& io, const std::string& strAVDocPathName)
    : listing_(io.numbers_, dataFolderOf(strAVDocPathName)) {}

std::string strMakeFolder(const ApplicationModule& app, const std::string& path) {
  std::string name = path;
  while (name.size() > 1 && name.back() == '/') name.pop_back();
  const bool taken = fileStamp(name).exists;
  const std::string reason = taken ? std::string() : makeFolder(name);
  if (!taken && reason.empty()) return {};
  return app.LoadResString(1094) + " " + path + " (" + reason + ")";
}

std::string strMakeGUIDText() {
  std::array<std::uint8_t, 16> bytes{};
  if (::getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
    raise(kInvalidArgument, "random bytes");
  }
  std::string text;
  for (const std::uint8_t byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", byte);
    text += digits;
  }
  return text;
}

}  // namespace velra
