// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/DocumentSave.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "objects/MediaObject.h"
#include "objects/OrderedSave.h"
#include "objects/PlannedSave.h"
#include "objects/SavePoint.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/MainWindow.h"
#include "protocol/VideoExpression.h"
#include "rescue/DocumentRescue.h"
#include "store/DataFolder.h"
#include "store/IOManager.h"
#include "store/ReferenceIndex.h"
#include "store/RemovedFiles.h"

namespace velra {

namespace {

// The picture of a segment goes with its Video to the new place.
void relocateKeyFrame(VideoExpression& video, ObjectRegistry& objects, IOManager& io,
                      const std::string& strAVDocPathName, SavePoint& before) {
  const auto picture = video.objKeyframeObject();
  if (!picture || picture->strGUID().empty()) return;
  const std::string oldGUID = picture->strGUID();
  const std::string newGUID = io.strCreateGUID(objects, ObjectKind::MediaObject,
                                               picture->strTypeOfObject(), strAVDocPathName);
  before.named(newGUID);
  picture->setStrGUID(newGUID);
  video.UpdateLocationKeyFrameObject(oldGUID, newGUID);
  before.relocated(picture, oldGUID, newGUID);
}

}  // namespace

DocumentSave::DocumentSave(ApplicationModule& app, AVDocument& document)
    : app_(app), document_(document), objects_(document.collObjects()), io_(*document.io()) {}

bool DocumentSave::refused(const std::string& message) {
  if (!message.empty()) app_.ui.messageBox(message);
  app_.ui.messageBox(app_.LoadResString(Message::ObjectsNotSaved));
  return false;
}

// Its file came since the number was given, from another program: the object takes the next one.
void DocumentSave::renumber(DescribedObject& object) {
  const std::string oldGUID = object.strGUID();
  const ObjectList holders = objects_.references().holdersOf(oldGUID);
  const std::string newGUID = io_.strCreateGUID(objects_, object, document_.strGUID());
  io_.withdraw(oldGUID);
  object.setStrGUID(newGUID);
  for (const ObjectRef& holder : holders) holder->RenameAllRelativesGUID(oldGUID, newGUID);
  const auto* video = as<VideoExpression>(&object);
  if (!video) return;
  app_.gMainForm->RemoveIcon(oldGUID);
  app_.gMainForm->AddSmallKeyFrame(*video);
}

bool DocumentSave::bSaveAllObjects() {
  if (!io_.bFileSystem()) return false;
  // One without changes has nothing to write, so only the others are asked.
  for (const RegisteredRef& object : objects_.changedObjects()) {
    if (object.get() != &document_ && !object->bSave()) return false;
  }
  return true;
}

bool DocumentSave::bSave() {
  for (const RegisteredRef& changed : objects_.changedObjects()) {
    const auto object = as<DescribedObject>(changed);
    if (!object) continue;  // a picture has its file before it has its name
    const std::string guid = object->strGUID();
    if (io_.names().isPromised(guid) && bFileExists(guid)) renumber(*object);
  }
  SavePoint before(objects_.changedObjects());
  PlannedSave planned(io_, objects_.changedObjects(), filesToRemove());
  if (!bSaveAllObjects()) return refused({});
  const bool saved = document_.bSaveOwnFile();
  const std::string failure = io_.strFlush();
  if (!failure.empty()) {
    // Nobody knows what reached the disk, so all of it is to be written again.
    before.restoreFlags();
    return refused(failure + " (" + document_.strGUID() + ")");
  }
  for (const std::string& guid : document_.colObjRemoved()) io_.RemoveGUID(guid);
  io_.keepFilesOf(objects_);
  if (saved) {
    planned.finished();
    document_.unsavedWork().saved(objects_);
  }
  return saved;
}

// As they will be when the next save is done.
std::vector<std::string> DocumentSave::filesToRemove() {
  RemovedFiles removed;
  for (const std::string& guid : io_.colGUIDToRemove()) removed.add(guid);
  for (const std::string& guid : document_.colObjRemoved()) {
    // What lies under a name that was never written is another program's.
    if (!io_.names().isPromised(guid)) removed.add(guid);
  }
  removed.keepFilesOf(objects_);
  return removed.identifiers();
}

bool DocumentSave::bSaveAs(const std::string& strAVDocPathName) {
  const std::string& unlisted = document_.strUnlisted();
  if (!unlisted.empty()) {
    app_.ui.messageBox(unlisted + ": Save As would leave out the expressions in it.");
    return false;
  }
  const bool hadFolder = bFolderExists(dataFolderOf(strAVDocPathName));
  SavePoint before(objects_.all());
  const Outcome outcome = saveAsFrom(before, strAVDocPathName);
  if (outcome == Outcome::Done) return true;
  before.restore(io_, outcome == Outcome::NotSynced);
  if (!hadFolder) removeFolderIfEmpty(dataFolderOf(strAVDocPathName));
  return false;
}

DocumentSave::Outcome DocumentSave::saveAsFrom(SavePoint& before,
                                               const std::string& strAVDocPathName) {
  if (!bRenamedAndSaved(before, strAVDocPathName)) {
    refused({});
    return Outcome::NotWritten;
  }
  document_.setStrSchemaPath(app_.strXSDPath());
  document_.setStrGUID(strAVDocPathName);
  if (!document_.bSaveOwnFileAs(strAVDocPathName)) return Outcome::NotWritten;
  if (!io_.strSaveFailure().empty()) {
    app_.ui.messageBox(io_.strSaveFailure());
    return Outcome::NotWritten;
  }
  const std::string failure = io_.strFlush();
  if (!failure.empty()) {
    refused(failure + " (" + strAVDocPathName + ")");
    return Outcome::NotSynced;
  }
  io_.keepFilesOf(objects_);
  if (io_.rescue()) io_.rescue()->savedElsewhere();
  document_.unsavedWork().saved(objects_);
  return Outcome::Done;
}

// A folder that cannot be written or a disk that is full ends the command and not the program.
bool DocumentSave::bRenamedAndSaved(SavePoint& before, const std::string& strAVDocPathName) {
  try {
    return bSaveAllObjectsAs(before, strAVDocPathName);
  } catch (const RunTimeError& error) {
    app_.ui.messageBox(error.description());
    return false;
  }
}

bool DocumentSave::bSaveAllObjectsAs(SavePoint& before, const std::string& strAVDocPathName) {
  // The folder comes before the first name: what tells that there is none must not become one.
  if (objects_.Count() > 1) {
    const std::string message = io_.strMakeDataFolder(strAVDocPathName);
    if (!message.empty()) {
      app_.ui.messageBox(message);
      return false;
    }
  }
  const NewFileNames::Listing listing(io_.names(), objects_, strAVDocPathName);
  const std::string schemaPath = app_.strXSDPath();
  ReferenceIndex& references = objects_.references();
  ReferenceIndex::Batch batch(references);
  for (const ObjectRef& object : objects_.described()) {
    if (object.get() == &document_) continue;
    const std::string newGUID = io_.strCreateGUID(objects_, *object, strAVDocPathName);
    before.named(newGUID);
    const std::string oldGUID = object->strGUID();
    object->setStrGUID(newGUID);
    object->setStrSchemaPath(schemaPath);
    for (const ObjectRef& holder : references.holdersOf(oldGUID)) {
      holder->RenameAllRelativesGUID(oldGUID, newGUID);
    }
    batch.renamed(oldGUID, newGUID);
    auto* video = as<VideoExpression>(object.get());
    if (video && io_.bFileSystem()) {
      relocateKeyFrame(*video, objects_, io_, strAVDocPathName, before);
    }
  }
  return bSaveInDependencyOrder(app_, objects_, document_);
}

}  // namespace velra
