// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/IOManager.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/files/ContentPrint.h"
#include "platform/files/FileMoves.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlWriter.h"
#include "protocol/LongWork.h"
#include "protocol/MainWindow.h"
#include "protocol/PaintedWait.h"
#include "rescue/DocumentRescue.h"
#include "rescue/InterruptedSave.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueWriter.h"
#include "store/DataFolder.h"
#include "store/ParentFinder.h"

namespace velra {

namespace {

constexpr std::size_t kManyFiles = 100;  // which take longer than a person notices

}  // namespace

IOManager::IOManager(ApplicationModule& app)
    : app_(app), names_(app), scans_(app), expressions_(app, scans_) {}

IOManager::~IOManager() {
  takeBackLeft();
  // What could not be deleted now is tried again when the document is opened next.
  if (strDeleteAll().empty() && rescue_) rescue_->removalsDone();
  const std::string notes = guard_.strTakeNotes(app_.messages);
  if (!notes.empty() && app_.gMainForm) app_.gMainForm->setStrStatusBarText(notes);
  // What is known of tens of thousands of files.
  app_.lateRelease.take(std::move(guard_));
  app_.lateRelease.take(std::move(names_));
  app_.lateRelease.take(std::move(removed_));
  app_.lateRelease.take(std::move(scans_));
}

std::string IOManager::strFinishCutOffSaves(const std::string& strAVDocPathName) {
  if (!app_.rescue || !bFileSystem_) return {};
  std::string told;
  OthersAtWork others;
  const std::string document = strAbsolutePath(strAVDocPathName);
  const bool italian = app_.messages.language() == InterfaceLanguage::Italian;
  const std::string failure = app_.rescue->run([&](RescueStore& store) {
    told = finishInterruptedSaves(store, document, rescueTexts(italian));
    others = othersAtWork(store, document);
  });
  if (!failure.empty()) return app_.LoadResString(Message::WorkCannotBeKept) + failure;
  std::string sentence;
  if (others.open) {
    sentence = app_.LoadResString(Message::DocumentOpenElsewhere);
  } else if (others.kept != 0) {
    sentence = app_.LoadResString(Message::UnsavedWorkIsKept) + " (" + strWhen(others.kept) + ").";
  }
  return told + (told.empty() || sentence.empty() ? "" : " ") + sentence;
}

void IOManager::joinStore(const std::string& strAVDocPathName) {
  guard_.setDocument(strAbsolutePath(strAVDocPathName));
  if (!app_.rescue || !bFileSystem_) return;
  rescue_ = std::make_unique<DocumentRescue>(*app_.rescue, strAbsolutePath(strAVDocPathName));
}

std::string IOManager::strCreateGUID(ObjectRegistry& collObjects, const DescribedObject& objNew,
                                     const std::string& strAVDocPathName) {
  return strCreateGUID(collObjects, objNew.kind(), "xml", strAVDocPathName);
}

std::string IOManager::strCreateGUID(ObjectRegistry& collObjects, ObjectKind kind,
                                     const std::string& extension,
                                     const std::string& strAVDocPathName) {
  if (!bFileSystem_) return {};
  return names_.give(collObjects, kind, extension, strAVDocPathName);
}

std::string IOManager::strMakeDataFolder(const std::string& strAVDocPathName) const {
  return bFileSystem_ ? velra::strMakeDataFolder(app_, strAVDocPathName) : std::string();
}

void IOManager::withdraw(const std::string& strGUID) {
  strDeleteFile(strGUID);
  names_.withdrawn(strGUID);
}

std::string IOManager::strOpen(XmlDocument& objDOMDocument, const std::string& strGUID) {
  objDOMDocument = XmlDocument();
  if (!bFileSystem_) return {};
  if (!bFileExists(strGUID)) return app_.LoadResString(Message::ObjectNotFound) + " " + strGUID;
  if (!objDOMDocument.load(strGUID)) return "XML Parser: " + objDOMDocument.reason();
  guard_.noteContent(strAbsolutePath(strGUID), objDOMDocument.print());
  return {};
}

std::string IOManager::strSave(const XmlWriter& objDOMDocument, const std::string& strGUID) {
  saveFailure_.clear();
  if (!bFileSystem_) return {};
  std::string bytes = objDOMDocument.bytes();
  const std::string path = strAbsolutePath(strGUID);
  // A file that came under a promised name since is another program's.
  if (names_.isPromised(strGUID)) {
    if (behind_) return saveFailure_ = strSaveBehind(std::move(bytes), strGUID);
    saveFailure_ = writeNewFile(strGUID, bytes);
    unflushed_.made();
  } else if ((saveFailure_ = guard_.strWhyNotWrite(path)).empty()) {
    saveFailure_ = writeFileInPlace(strGUID, bytes);
  }
  if (!saveFailure_.empty()) {
    return saveFailure_ = app_.messages.inLanguage(saveFailure_) + " (" + strGUID + ")";
  }
  guard_.noteContent(path, contentPrint(bytes));
  names_.written(strGUID);
  unflushed_.written(strGUID);
  return {};
}

std::string IOManager::strSaveBehind(std::string bytes, const std::string& strGUID) {
  const FilesBehind::Failure soFar = behind_->failure();
  if (!soFar.reason.empty()) return strSentence(soFar);
  behind_->write(strGUID, std::move(bytes), strStatus());
  unflushed_.made();
  unflushed_.written(strGUID);
  return {};
}

void IOManager::makeFilesBehind(HiddenFolder hidden) {
  takeBackLeft();
  behind_ = std::make_unique<FilesBehind>(names_, guard_, std::move(hidden), [this] {
    if (app_.gMainForm) app_.gMainForm->workWaits();
  });
}

void IOManager::noteFilesMade() {
  behind_->note();
  if (behind_->bHiddenLeft()) left_.push_back(std::move(behind_));
  behind_ = nullptr;
}

void IOManager::takeBackLeft() {
  for (const auto& files : left_) files->takeBackLeft();
  std::erase_if(left_, [](const auto& files) { return !files->bHiddenLeft(); });
}

std::string IOManager::strSentence(const FilesBehind::Failure& failure) const {
  if (failure.unwritten.empty()) return failure.reason;
  return app_.messages.inLanguage(failure.reason) + " (" + failure.unwritten + ")";
}

std::string IOManager::strStatus() const {
  return app_.gMainForm ? app_.gMainForm->strStatusBarText() : std::string();
}

void IOManager::noteLeftOut(const std::string& guid, const std::string& message) {
  const bool named = message.find(guid) != std::string::npos;
  if (leftOut_.empty() && !named) leftOut_ = guid + ": " + message;
}

void IOManager::MoveObject(const std::string& source, const std::string& destination) {
  if (!bFileSystem_) return;
  unflushed_.made();
  const std::string from = strAbsolutePath(source);
  const std::string to = strAbsolutePath(destination);
  if (behind_ && names_.isPromised(to)) return behind_->move(from, to, strStatus());
  MoveFileTo(from, to);
  names_.went(from);
  names_.came(to);
}

void IOManager::CopyObject(const std::string& source, const std::string& destination) {
  if (!bFileSystem_) return;
  unflushed_.made();
  const std::string to = strAbsolutePath(destination);
  const std::string from = strAbsolutePath(source);
  // What has come under a promised name is another program's.
  if (!names_.isPromised(to)) {
    CopyFileTo(from, to);
  } else if (behind_) {
    return behind_->copy(from, to, strStatus());
  } else {
    CopyToNewFile(from, to);
  }
  names_.came(to);
}

// Thousands of files take seconds.
std::string IOManager::strDeleteAll() {
  if (removed_.size() <= kManyFiles) return strSync();
  const LongWork work(app_.gMainForm, removed_.size());
  return paintedWait(app_.gMainForm, [this] { return strSync(); });
}

std::string IOManager::strSync() {
  return removed_.deleteAll([this](const std::string& guid) { return strDeleteRemoved(guid); });
}

// Removing an object must not reach what is not the document's.
std::string IOManager::strDeleteRemoved(const std::string& strGUID) {
  const std::string path = strAbsolutePath(strGUID);
  return guard_.goes(path, rescue_.get()) ? strDeleteFile(strGUID) : std::string();
}

std::string IOManager::strDeleteFile(const std::string& strGUID) {
  return bFileSystem_ && !names_.isPromised(strGUID) ? deleteFile(strGUID) : std::string();
}

bool IOManager::bGUIDComp(const std::string& strGUID1, const std::string& strGUID2) const {
  return bFileSystem_ && bSamePath(strGUID1, strGUID2);
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

ExpressionList IOManager::colScanForExpressions(const ObjectRef& objParent) {
  return bFileSystem_ ? expressions_.open(objParent, shared_from_this()) : ExpressionList();
}

std::string IOManager::strRetrieveAVDocGUIDFromGUID(const std::string& strGUID) {
  if (!bFileSystem_) return {};
  return ParentFinder(app_, scans_, shared_from_this()).strRetrieveAVDocGUIDFromGUID(strGUID);
}

}  // namespace velra
