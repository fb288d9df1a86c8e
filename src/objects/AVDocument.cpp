#include "objects/AVDocument.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "objects/CrossLanguageDefaults.h"
#include "objects/Media.h"
#include "objects/MediaObject.h"
#include "objects/OrderedSave.h"
#include "objects/Storage.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "protocol/Expression.h"
#include "protocol/MainWindow.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "store/ReferenceIndex.h"

namespace velra {

namespace {

// The picture of a segment goes with its Video to the new place.
void relocateKeyFrame(Expression& video, ObjectRegistry& objects, IOManager& io,
                      const std::string& strAVDocPathName) {
  const auto picture = std::dynamic_pointer_cast<MediaObject>(video.objKeyframeObject());
  if (!picture || picture->strGUID().empty()) return;
  const std::string oldGUID = picture->strGUID();
  const std::string newGUID =
      io.strCreateGUID(objects, picture->className(), picture->strTypeOfObject(), strAVDocPathName);
  picture->setStrGUID(newGUID);
  video.UpdateLocationKeyFrameObject(oldGUID, newGUID);
}

Version& versionOf(const Storage& storage) {
  const auto media = storage.objParent();
  const auto version = media ? media->objParent() : nullptr;
  if (!version) raise(kNoObject);
  return *version;
}

}  // namespace

AVDocument::AVDocument(ApplicationModule& app) : LadderObject(app, "AVDocument"), schemas_(app) {}

AVDocument::~AVDocument() {
  collObjects_.clear();
}

OpenDocument& AVDocument::document() const {
  return const_cast<AVDocument&>(*this);
}

// The registry is a part of the document: an entry that held it would keep both alive for ever.
void AVDocument::registerSelf() {
  collObjects_.Add(ObjectRef(this, [](DescribedObject*) {}));
}

void AVDocument::initFields() {
  InitCrossLanguageFields(app(), secol());
}

void AVDocument::adopt(DescribedObject& child) {
  auto* version = dynamic_cast<Version*>(&child);
  if (!version) raise(kTypeMismatch);
  version->setObjParent(std::dynamic_pointer_cast<AVDocument>(shared_from_this()));
}

std::int16_t AVDocument::iAlreadyLoaded(const std::string& guid) {
  return toInt16(static_cast<double>(collObjects_.positionOf(guid)));
}

std::string AVDocument::strOpen(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                                const std::shared_ptr<IOManager>& io) {
  const IOManager::Opening opening(*io);
  return LadderObject::strOpen(guid, form, io);
}

void AVDocument::ShowForm(FormOwner& owner) {
  try {
    LadderObject::ShowForm(owner);
  } catch (const RunTimeError& error) {
    if (error.number() == kFormUnloaded) return;
    app().ui.messageBox(error.description(), BoxKind::Critical);
  }
}

void AVDocument::ShowObjectForm(const std::string& guid, FormOwner& owner) {
  if (const ObjectRef object = collObjects_.find(guid)) object->ShowForm(owner);
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
  if (!bSaveAllObjects()) {
    app().ui.messageBox(app().LoadResString(1095));
    return false;
  }
  const bool saved = LadderObject::bSave();
  markRemovedFiles();
  const std::string failure = io()->strFlush();
  if (!failure.empty()) app().ui.messageBox(failure, BoxKind::Exclamation);
  return saved;
}

void AVDocument::markRemovedFiles() {
  for (const std::string& guid : colObjRemoved_) io()->RemoveGUID(guid);
  io()->keepFilesOf(collObjects_);
}

bool AVDocument::bSaveAs(const std::string& strAVDocPathName) {
  if (!bRenamedAndSaved(strAVDocPathName)) {
    app().ui.messageBox(app().LoadResString(1095));
    return false;
  }
  setStrSchemaPath(app().strXSDPath());
  setStrGUID(strAVDocPathName);
  const bool saved = secol().bSaveAs(domDoc(), strAVDocPathName, *io());
  io()->keepFilesOf(collObjects_);
  const std::string failure = io()->strFlush();
  if (!failure.empty()) app().ui.messageBox(failure, BoxKind::Exclamation);
  return saved;
}

// A folder that cannot be written or a disk that is full ends the command and not the program.
bool AVDocument::bRenamedAndSaved(const std::string& strAVDocPathName) {
  try {
    return bSaveAllObjectsAs(strAVDocPathName);
  } catch (const RunTimeError& error) {
    app().ui.messageBox(error.description());
    return false;
  }
}

bool AVDocument::bSaveAllObjectsAs(const std::string& strAVDocPathName) {
  const IOManager::Naming naming(*io(), strAVDocPathName);
  const std::string schemaPath = app().strXSDPath();
  ReferenceIndex& references = collObjects_.references();
  ReferenceIndex::Batch batch(references);
  for (const ObjectRef& object : collObjects_.all()) {
    if (object.get() == this || object->className() == "MediaObject") continue;
    const std::string newGUID = io()->strCreateGUID(collObjects_, *object, strAVDocPathName);
    const std::string oldGUID = object->strGUID();
    object->setStrGUID(newGUID);
    object->setStrSchemaPath(schemaPath);
    for (const ObjectRef& holder : references.holdersOf(oldGUID)) {
      holder->RenameAllRelativesGUID(oldGUID, newGUID);
    }
    batch.renamed(oldGUID, newGUID);
    auto* video = dynamic_cast<Expression*>(object.get());
    if (video && io()->bFileSystem()) {
      relocateKeyFrame(*video, collObjects_, *io(), strAVDocPathName);
    }
  }
  return bSaveInDependencyOrder(app(), collObjects_, *this);
}

void AVDocument::RemoveObject(ObjectRef& removed) {
  const ObjectRef object = std::exchange(removed, nullptr);
  for (const ObjectRef& holder : collObjects_.references().holdersOf(*object)) {
    holder->RemoveReferenceObj(*object);
  }
  noteRemoved(object);
}

void AVDocument::RemoveObjects(const ObjectList& removed) {
  ReferenceIndex& references = collObjects_.references();
  ReferenceIndex::Batch batch(references);
  for (const ObjectRef& object : removed) {
    for (const ObjectRef& holder : references.holdersOf(*object)) {
      holder->RemoveReferenceObj(*object);
    }
    const auto* expression = dynamic_cast<const Expression*>(object.get());
    const auto next = expression ? expression->objFollowedBy() : nullptr;
    if (next) batch.removed(*object, *next);
    noteRemoved(object);
  }
}

void AVDocument::noteRemoved(const ObjectRef& removed) {
  const std::string guid = removed->strGUID();
  collObjects_.Remove(*removed);
  if (removed->className() == "Video") {
    app().gMainForm->RemoveIcon(guid);
    const auto& video = dynamic_cast<const Expression&>(*removed);
    const ObjectRef picture = video.objKeyframeObject();
    if (picture) colObjRemoved_.push_back(picture->strGUID());
  }
  if (const auto* storage = dynamic_cast<const Storage*>(removed.get())) {
    // The Media has dropped it by now, so the Version sees what is left.
    versionOf(*storage).ResetDuration();
  }
  colObjRemoved_.push_back(guid);
}

}  // namespace velra
