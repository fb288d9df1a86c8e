// SPDX-License-Identifier: GPL-3.0-or-later

// How a document is saved, and what of that is taken back when it fails.
#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "objects/MediaObject.h"
#include "objects/OrderedSave.h"
#include "objects/SavePoint.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/Expression.h"
#include "protocol/MainWindow.h"
#include "schema/SEColl.h"
#include "store/DataFolder.h"
#include "store/IOManager.h"
#include "store/ReferenceIndex.h"

namespace velra {

namespace {

// The picture of a segment goes with its Video to the new place.
void relocateKeyFrame(Expression& video, ObjectRegistry& objects, IOManager& io,
                      const std::string& strAVDocPathName, SavePoint& before) {
  const auto picture = std::dynamic_pointer_cast<MediaObject>(video.objKeyframeObject());
  if (!picture || picture->strGUID().empty()) return;
  const std::string oldGUID = picture->strGUID();
  const std::string newGUID =
      io.strCreateGUID(objects, picture->className(), picture->strTypeOfObject(), strAVDocPathName);
  before.named(newGUID);
  picture->setStrGUID(newGUID);
  video.UpdateLocationKeyFrameObject(oldGUID, newGUID);
  before.relocated(picture, oldGUID, newGUID);
}

}  // namespace

bool AVDocument::refused(const std::string& message) {
  if (!message.empty()) app().ui.messageBox(message);
  app().ui.messageBox(app().LoadResString(Message::ObjectsNotSaved));
  return false;
}

// Its file came since the number was given, from another program: the object takes the next one.
void AVDocument::renumber(DescribedObject& object) {
  const std::string oldGUID = object.strGUID();
  const ObjectList holders = collObjects_.references().holdersOf(oldGUID);
  const std::string newGUID = io()->strCreateGUID(collObjects_, object, strGUID());
  io()->withdraw(oldGUID);
  object.setStrGUID(newGUID);
  for (const ObjectRef& holder : holders) holder->RenameAllRelativesGUID(oldGUID, newGUID);
  if (object.className() != "Video") return;
  app().gMainForm->RemoveIcon(oldGUID);
  app().gMainForm->AddSmallKeyFrame(dynamic_cast<const Expression&>(object));
}

bool AVDocument::bSaveAllObjects() {
  if (!io()->bFileSystem()) return false;
  // One without changes has nothing to write, so only the others are asked.
  for (const ObjectRef& object : collObjects_.changedObjects()) {
    if (object.get() != this && !object->bSave()) return false;
  }
  return true;
}

bool AVDocument::bSave() {
  for (const ObjectRef& object : collObjects_.changedObjects()) {
    const std::string guid = object->strGUID();
    if (io()->names().isPromised(guid) && bFileExists(guid)) renumber(*object);
  }
  SavePoint before(collObjects_.changedObjects());
  if (!bSaveAllObjects()) return refused({});
  const bool saved = LadderObject::bSave();
  const std::string failure = io()->strFlush();
  if (!failure.empty()) {
    // Nobody knows what reached the disk, so all of it is to be written again.
    before.restoreFlags();
    return refused(failure + " (" + strGUID() + ")");
  }
  markRemovedFiles();
  return saved;
}

void AVDocument::markRemovedFiles() {
  for (const std::string& guid : colObjRemoved_) io()->RemoveGUID(guid);
  io()->keepFilesOf(collObjects_);
}

bool AVDocument::bSaveAs(const std::string& strAVDocPathName) {
  if (!unlisted_.empty()) {
    app().ui.messageBox(unlisted_ + ": Save As would leave out the expressions in it.");
    return false;
  }
  const bool hadFolder = bFolderExists(dataFolderOf(strAVDocPathName));
  SavePoint before(collObjects_.all());
  const SaveOutcome outcome = saveAsFrom(before, strAVDocPathName);
  if (outcome == SaveOutcome::Done) return true;
  before.restore(*io(), outcome == SaveOutcome::NotSynced);
  if (!hadFolder) removeFolderIfEmpty(dataFolderOf(strAVDocPathName));
  return false;
}

AVDocument::SaveOutcome AVDocument::saveAsFrom(SavePoint& before,
                                               const std::string& strAVDocPathName) {
  if (!bRenamedAndSaved(before, strAVDocPathName)) {
    refused({});
    return SaveOutcome::NotWritten;
  }
  setStrSchemaPath(app().strXSDPath());
  setStrGUID(strAVDocPathName);
  if (!secol().bSaveAs(domDoc(), strAVDocPathName, *io())) return SaveOutcome::NotWritten;
  if (!io()->strSaveFailure().empty()) {
    app().ui.messageBox(io()->strSaveFailure());
    return SaveOutcome::NotWritten;
  }
  const std::string failure = io()->strFlush();
  if (!failure.empty()) {
    refused(failure + " (" + strAVDocPathName + ")");
    return SaveOutcome::NotSynced;
  }
  io()->keepFilesOf(collObjects_);
  return SaveOutcome::Done;
}

// A folder that cannot be written or a disk that is full ends the command and not the program.
bool AVDocument::bRenamedAndSaved(SavePoint& before, const std::string& strAVDocPathName) {
  try {
    return bSaveAllObjectsAs(before, strAVDocPathName);
  } catch (const RunTimeError& error) {
    app().ui.messageBox(error.description());
    return false;
  }
}

bool AVDocument::bSaveAllObjectsAs(SavePoint& before, const std::string& strAVDocPathName) {
  // The folder comes before the first name: what tells that there is none must not become one.
  if (collObjects_.Count() > 1) {
    const std::string message = io()->strMakeDataFolder(strAVDocPathName);
    if (!message.empty()) {
      app().ui.messageBox(message);
      return false;
    }
  }
  const NewFileNames::Listing listing(io()->names(), collObjects_, strAVDocPathName);
  const std::string schemaPath = app().strXSDPath();
  ReferenceIndex& references = collObjects_.references();
  ReferenceIndex::Batch batch(references);
  for (const ObjectRef& object : collObjects_.all()) {
    if (object.get() == this || object->className() == "MediaObject") continue;
    const std::string newGUID = io()->strCreateGUID(collObjects_, *object, strAVDocPathName);
    before.named(newGUID);
    const std::string oldGUID = object->strGUID();
    object->setStrGUID(newGUID);
    object->setStrSchemaPath(schemaPath);
    for (const ObjectRef& holder : references.holdersOf(oldGUID)) {
      holder->RenameAllRelativesGUID(oldGUID, newGUID);
    }
    batch.renamed(oldGUID, newGUID);
    auto* video = dynamic_cast<Expression*>(object.get());
    if (video && io()->bFileSystem()) {
      relocateKeyFrame(*video, collObjects_, *io(), strAVDocPathName, before);
    }
  }
  return bSaveInDependencyOrder(app(), collObjects_, *this);
}

}  // namespace velra
