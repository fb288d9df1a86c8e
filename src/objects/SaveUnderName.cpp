// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/SaveUnderName.h"

#include <future>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "objects/DocumentSave.h"
#include "objects/MediaObject.h"
#include "objects/OrderedSave.h"
#include "objects/SavePoint.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/LongWork.h"
#include "protocol/PaintedWait.h"
#include "protocol/VideoExpression.h"
#include "store/DataFolder.h"
#include "store/HiddenFolder.h"
#include "store/IOManager.h"
#include "store/ReferenceIndex.h"

namespace velra {

namespace {

// Fewer pictures reach the disk with all else in no longer time.
constexpr std::size_t kWorthTheDisk = 1000;

}  // namespace

SaveUnderName::SaveUnderName(ApplicationModule& app, AVDocument& document)
    : app_(app), document_(document), objects_(document.collObjects()), io_(*document.io()) {}

bool SaveUnderName::bSaveAs(const std::string& strAVDocPathName) {
  const std::string& unlisted = document_.strUnlisted();
  if (!unlisted.empty()) {
    app_.ui.messageBox(unlisted + app_.LoadResString(Message::CopyWithoutThese));
    return false;
  }
  const std::string folder = dataFolderOf(strAVDocPathName);
  const bool hadFolder = bFolderExists(folder);
  // One that somebody has made keeps what he gave it.
  if (!hadFolder) hidden_ = HiddenFolder::pathBeside(folder);
  if (document_.secol().begin() == document_.secol().end()) {
    app_.ui.messageBox(app_.LoadResString(Message::CopyWithoutSchema));
    return false;
  }
  // Each object is renamed, and then all but the document are saved in turn.
  described_ = objects_.described();
  const LongWork work(app_.gMainForm, 2 * described_.size() - 1);
  SavePoint before(objects_.all(), [this] {
    if (app_.gMainForm) app_.gMainForm->workWaits();
  });
  const Outcome outcome = saveAsFrom(before, strAVDocPathName);
  if (outcome == Outcome::Done) return true;
  before.restore(io_, outcome == Outcome::NotSynced);
  if (!hadFolder) removeFolderIfEmpty(folder);
  return false;
}

SaveUnderName::Outcome SaveUnderName::saveAsFrom(SavePoint& before,
                                                 const std::string& strAVDocPathName) {
  if (!bMakeFiles(before, strAVDocPathName)) {
    bRefused(app_, {});
    return Outcome::NotWritten;
  }
  if (!document_.bSaveOwnFileAs(strAVDocPathName)) return Outcome::NotWritten;
  if (!io_.strSaveFailure().empty()) {
    app_.ui.messageBox(io_.strSaveFailure());
    return Outcome::NotWritten;
  }
  const std::string failure = strFlush();
  if (!failure.empty()) {
    bRefused(app_, failure + " (" + strAVDocPathName + ")");
    return Outcome::NotSynced;
  }
  io_.removed().keepFilesOf(objects_);
  if (app_.gMainForm) app_.gMainForm->workWaits();
  planned_->finished();
  document_.unsavedWork().saved(objects_);
  if (app_.gMainForm) app_.gMainForm->workWaits();  // what was put aside goes, which takes a while
  return Outcome::Done;
}

// A sentence has been shown when the result is false. A folder that cannot be written or a disk
// that is full ends the command and not the program.
bool SaveUnderName::bHandOverAll(SavePoint& before, const std::string& strAVDocPathName) {
  try {
    if (!bFolderMade(strAVDocPathName)) return false;
    const NewFileNames::Listing listing(io_.names(), objects_, strAVDocPathName);
    handOverPictures(before, strAVDocPathName);
    renameObjects(before, strAVDocPathName);
  } catch (const RunTimeError& error) {
    app_.ui.messageBox(error.description());
    return false;
  }
  document_.setStrSchemaPath(app_.strXSDPath());
  document_.setStrGUID(strAVDocPathName);
  io_.guard().setChosen(strAbsolutePath(strAVDocPathName));
  paintedWait(app_.gMainForm, [&] { planned_->tell(io_, document_, made_); });
  return bSaveInDependencyOrder(app_, objects_, document_);
}

// The folder comes before the first name: what tells that there is none must not become one.
bool SaveUnderName::bFolderMade(const std::string& strAVDocPathName) {
  if (objects_.Count() <= 1) return true;
  const std::string message = io_.strMakeDataFolder(strAVDocPathName);
  if (!message.empty()) app_.ui.messageBox(message);
  return message.empty();
}

// Pictures are a third of the files, and have numbers of their own. They are copied, and brought to
// the disk, while the objects get their names.
void SaveUnderName::handOverPictures(SavePoint& before, const std::string& strAVDocPathName) {
  for (const ObjectRef& object : described_) {
    if (app_.gMainForm) app_.gMainForm->workWaits();
    auto* video = as<VideoExpression>(object.get());
    if (video && io_.bFileSystem()) renameKeyFrame(*video, before, strAVDocPathName);
  }
  paintedWait(app_.gMainForm, [&] { planned_.emplace(io_, strAVDocPathName, made_, hidden_); });
  for (const auto& [video, from, to] : relocations_) {
    video->UpdateLocationKeyFrameObject(from, to);
    if (app_.gMainForm) app_.gMainForm->workWaits();
  }
  if (relocations_.size() >= kWorthTheDisk) io_.bringToDiskBehind(dataFolderOf(strAVDocPathName));
}

void SaveUnderName::renameObjects(SavePoint& before, const std::string& strAVDocPathName) {
  const std::string schemaPath = app_.strXSDPath();
  ReferenceIndex& references = objects_.references();
  ReferenceIndex::Batch batch(references);
  for (const ObjectRef& object : described_) {
    if (app_.gMainForm) app_.gMainForm->workSteps();
    if (object.get() == &document_) continue;
    const std::string newGUID = io_.strCreateGUID(objects_, *object, strAVDocPathName);
    before.named(newGUID);
    made_.push_back({newGUID, {}});
    const std::string oldGUID = object->strGUID();
    object->setStrGUID(newGUID);
    object->setStrSchemaPath(schemaPath);
    for (const ObjectRef& holder : references.holdersOf(oldGUID)) {
      holder->RenameAllRelativesGUID(oldGUID, newGUID);
    }
    batch.renamed(oldGUID, newGUID);
  }
}

// The picture of a segment goes with its Video to the new place, when all that goes there is known.
void SaveUnderName::renameKeyFrame(VideoExpression& video, SavePoint& before,
                                   const std::string& strAVDocPathName) {
  const auto picture = video.objKeyframeObject();
  if (!picture || picture->strGUID().empty()) return;
  const std::string oldGUID = picture->strGUID();
  const std::string newGUID = io_.strCreateGUID(objects_, ObjectKind::MediaObject,
                                                picture->strTypeOfObject(), strAVDocPathName);
  before.named(newGUID);
  picture->setStrGUID(newGUID);
  const std::string leaves = picture->bChanged() ? strAbsolutePath(oldGUID) : std::string();
  if (!leaves.empty()) io_.names().went(leaves);
  made_.push_back({newGUID, leaves});
  relocations_.push_back({&video, oldGUID, newGUID});
}

// All of a new document is brought to the disk, which takes seconds.
std::string SaveUnderName::strFlush() {
  return paintedWait(app_.gMainForm, [&] { return io_.strFlush(); });
}

// While the disk takes the new files, the program notes what they hold, and the registry lets go of
// the objects that have nothing to save any more, not in one piece with the closing of the
// document.
std::string SaveUnderName::strFlushNewFiles() {
  return paintedWait(app_.gMainForm, [this] {
    constexpr auto kBesideIfItCan = std::launch::async | std::launch::deferred;
    std::future<std::string> flushed =
        std::async(kBesideIfItCan, [this] { return io_.strFlush(); });
    io_.noteFilesMade();
    static_cast<void>(objects_.changedObjects());
    return flushed.get();
  });
}

void SaveUnderName::tellOfRelocated(SavePoint& before, const std::vector<bool>& made) const {
  for (std::size_t i = 0; i < relocations_.size(); ++i) {
    if (app_.gMainForm) app_.gMainForm->workWaits();
    const auto& [video, from, to] = relocations_[i];
    // The pictures came first.
    if (i < made.size() && made[i]) before.relocated(video->objKeyframeObject(), from, to);
  }
}

bool SaveUnderName::bMakeFiles(SavePoint& before, const std::string& strAVDocPathName) {
  io_.makeFilesBehind({dataFolderOf(strAVDocPathName), hidden_});
  const bool handedOver = bHandOverAll(before, strAVDocPathName);
  const auto [made, failed] = paintedWait(app_.gMainForm, [&] { return io_.filesMade(); });
  tellOfRelocated(before, made);
  if (!handedOver || !failed.reason.empty()) {
    paintedWait(app_.gMainForm, [&] { io_.noteFilesMade(); });
    if (failed.reason.empty()) return false;
    if (app_.gMainForm) app_.gMainForm->setStrStatusBarText(failed.status);
    if (handedOver) app_.ui.messageBox(io_.strSentence(failed));
    return false;
  }
  // The document must never be there before what it names.
  const std::string failure = strFlushNewFiles();
  if (!failure.empty()) app_.ui.messageBox(failure + " (" + document_.strGUID() + ")");
  return failure.empty();
}

}  // namespace velra
