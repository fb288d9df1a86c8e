// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/AVDocument.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "objects/CrossLanguageDefaults.h"
#include "objects/DocumentSave.h"
#include "objects/Media.h"
#include "objects/MediaObject.h"
#include "objects/SaveUnderName.h"
#include "objects/Storage.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "protocol/LongWork.h"
#include "protocol/MainWindow.h"
#include "protocol/PaintedWait.h"
#include "protocol/VideoExpression.h"
#include "schema/SEColl.h"
#include "store/DataFolder.h"
#include "store/IOManager.h"
#include "store/ReferenceIndex.h"

namespace velra {

namespace {

// So many that what is called from the memory for them stays in the caches.
constexpr std::size_t kRemovedTogether = 64;

Version& versionOf(const Storage& storage) {
  const auto media = storage.objParent();
  const auto version = media ? media->objParent() : nullptr;
  if (!version) raise(kNoObject);
  return *version;
}

}  // namespace

AVDocument::AVDocument(ApplicationModule& app)
    : LadderObject(app, ObjectKind::AVDocument), shared_(app) {}

AVDocument::~AVDocument() {
  app().lateRelease.take(collObjects_.takeAll());
  app().lateRelease.take(std::move(colObjRemoved_));
}

OpenDocument& AVDocument::document() const {
  return const_cast<AVDocument&>(*this);
}

// The registry is a part of the document: an entry that held it would keep both alive for ever. The
// entry may outlive it, with all others that the registry held, and must not look at it then.
void AVDocument::registerSelf() {
  DescribedObject* self = this;
  collObjects_.Add(ObjectRef(self, [](DescribedObject*) {}));
}

void AVDocument::initFields() {
  InitCrossLanguageFields(app(), secol());
}

void AVDocument::adopt(DescribedObject& child) {
  auto* version = as<Version>(&child);
  if (!version) raise(kTypeMismatch);
  version->setObjParent(sharedOf(*this));
}

std::int16_t AVDocument::iAlreadyLoaded(const std::string& guid) {
  return toInt16(static_cast<double>(collObjects_.positionOf(guid)));
}

std::string AVDocument::strOpen(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                                const std::shared_ptr<IOManager>& io) {
  app().gAVDoc = sharedOf(*this);
  const FolderScans::Opening opening(io->scans());
  std::string told = io->strFinishCutOffSaves(guid);
  LongWork work(app().gMainForm, 1, Leaving::AtOnce);
  // Each file is read, and an object is made of it.
  MainWindow* window = app().gMainForm;
  const std::size_t files =
      paintedWait(window, [&] { return io->scans().filesIn(dataFolderOf(guid)); });
  work.setParts(2 * files);
  collObjects_.reserve(files);
  io->guard().reserve(files);
  std::string message = LadderObject::strOpen(guid, form, io);
  // Who opens a document waits anyway; who removes the first node of it should not.
  if (message.empty() && window) collObjects_.references().beginBeside();
  unlisted_ = io->scans().unlisted();
  if (message.empty() && !unlisted_.empty()) {
    app().ui.messageBox(unlisted_ + ": the expressions in it are not opened.",
                        BoxKind::Exclamation);
  }
  if (message.empty()) {
    io->joinStore(guid);
    if (window) window->workWaits();
    copied_ = copiedFolderOf(collObjects_, *this, io->scans(), window);
    if (window) window->workWaits();
    for (const std::string& more : {strCopyTold(), io->strLeftOut()}) {
      told += (told.empty() || more.empty() ? "" : " ") + more;
    }
    if (!told.empty() && window) window->setStrStatusBarText(told);
  }
  return message;
}

std::string AVDocument::strCopyTold() const {
  if (copied_.other.empty()) return {};
  const auto text = [this](Message message) { return app().LoadResString(message); };
  return text(Message::ThisCopy) +
         text(copied_.works ? Message::WorksOnObjectsIn : Message::LooksForObjectsIn) +
         copied_.other + text(copied_.works ? Message::AndNotIn : Message::WhileTheyLieIn) +
         dataFolderOf(strGUID()) + ".";
}

bool AVDocument::bSave() {
  if (copied_.works) {
    app().ui.messageBox(app().LoadResString(Message::NotSaved) + strCopyTold(),
                        BoxKind::Exclamation);
    return false;
  }
  return DocumentSave(app(), *this).bSave();
}

bool AVDocument::bSaveAs(const std::string& strAVDocPathName) {
  return SaveUnderName(app(), *this).bSaveAs(strAVDocPathName);
}

bool AVDocument::bSaveOwnFileAs(const std::string& path) {
  return secol().bSaveAs(domDoc(), path, *io());
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
  if (const auto object = as<DescribedObject>(collObjects_.find(guid))) object->ShowForm(owner);
}

bool AVDocument::keepUnsavedWork() {
  const auto store = io();
  return store && store->rescue() && unsaved_.keepSome(collObjects_, *store);
}

void AVDocument::RemoveObject(ObjectRef& removed) {
  const ObjectRef object = std::exchange(removed, nullptr);
  for (const ObjectRef& holder : collObjects_.references().holdersOf(*object)) {
    holder->RemoveReferenceObj(*object);
  }
  noteRemoved(object);
}

void AVDocument::RemoveObjects(const ObjectList& removed) {
  ReferenceIndex::Batch batch(collObjects_.references());
  std::span<const ObjectRef> rest(removed);
  while (!rest.empty()) {
    const auto group = rest.first(std::min(kRemovedTogether, rest.size()));
    removeTogether(group, batch);
    rest = rest.subspan(group.size());
  }
}

void AVDocument::removeTogether(std::span<const ObjectRef> removed, ReferenceIndex::Batch& batch) {
  ReferenceIndex& references = collObjects_.references();
  const std::vector<ReferenceIndex::Keys> keys = references.callKeysOf(removed);
  auto key = keys.begin();
  for (const ObjectRef& object : removed) {
    for (const ObjectRef& holder : references.holdersOf(*key++)) {
      holder->RemoveReferenceObj(*object);
    }
    const auto* expression = as<Expression>(object.get());
    const auto next = expression ? expression->objFollowedBy() : nullptr;
    if (next) batch.removed(*object, *next);
    noteRemoved(object);
  }
}

void AVDocument::noteRemoved(const ObjectRef& removed) {
  const std::string guid = removed->strGUID();
  collObjects_.Remove(*removed);
  if (const auto* video = as<VideoExpression>(removed.get())) {
    app().gMainForm->RemoveIcon(guid);
    const auto picture = video->objKeyframeObject();
    if (picture) colObjRemoved_.push_back(picture->strGUID());
  }
  if (const auto* storage = as<Storage>(removed.get())) {
    // The Media has dropped it by now, so the Version sees what is left.
    versionOf(*storage).ResetDuration();
  }
  colObjRemoved_.push_back(guid);
  if (io() && io()->rescue()) unsaved_.removed(*removed);
}

}  // namespace velra
