// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/DocumentSave.h"

#include <optional>

#include "app/ApplicationModule.h"
#include "objects/AVDocument.h"
#include "objects/PlannedSave.h"
#include "objects/SavePoint.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/LongWork.h"
#include "protocol/MainWindow.h"
#include "protocol/PaintedWait.h"
#include "protocol/VideoExpression.h"
#include "store/IOManager.h"
#include "store/ReferenceIndex.h"

namespace velra {

namespace {

constexpr std::size_t kManyFiles = 100;  // which take longer than a person notices

}  // namespace

DocumentSave::DocumentSave(ApplicationModule& app, AVDocument& document)
    : app_(app), document_(document), objects_(document.collObjects()), io_(*document.io()) {}

bool bRefused(ApplicationModule& app, const std::string& message) {
  if (!message.empty()) app.ui.messageBox(message);
  app.ui.messageBox(app.LoadResString(Message::ObjectsNotSaved));
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
  if (!video || !app_.gMainForm) return;
  app_.gMainForm->RemoveIcon(oldGUID);
  app_.gMainForm->AddSmallKeyFrame(*video);
}

bool DocumentSave::bSaveAllObjects() {
  if (!io_.bFileSystem()) return false;
  // One without changes has nothing to write, so only the others are asked.
  for (const RegisteredRef& object : objects_.changedObjects()) {
    if (app_.gMainForm) app_.gMainForm->workSteps();
    if (object.get() != &document_ && !object->bSave()) return false;
  }
  return true;
}

bool DocumentSave::bSave() {
  const bool saved = bWriteAll();
  const std::string notes = io_.guard().strTakeNotes(app_.messages);
  if (!notes.empty() && app_.gMainForm) app_.gMainForm->setStrStatusBarText(notes);
  return saved;
}

bool DocumentSave::bWriteAll() {
  for (const RegisteredRef& changed : objects_.changedObjects()) {
    const auto object = as<DescribedObject>(changed);
    if (!object) continue;  // a picture has its file before it has its name
    const std::string guid = object->strGUID();
    if (io_.names().isPromised(guid) && bSomethingAt(guid)) renumber(*object);
  }
  const std::size_t files = objects_.changedObjects().size();
  const bool removedMany =
      document_.colObjRemoved().size() > io_.removed().all().size() + kManyFiles;
  std::optional<LongWork> work;
  if (files > kManyFiles || removedMany) work.emplace(app_.gMainForm, files);
  SavePoint before(objects_.changedObjects());
  std::optional<PlannedSave> planned;
  const auto plan = [&] { planned.emplace(io_, objects_.changedObjects(), removals()); };
  work ? paintedWait(app_.gMainForm, plan) : plan();
  if (!bSaveAllObjects()) return bRefused(app_, {});
  const bool saved = document_.bSaveOwnFile();
  const auto flush = [&] { return io_.strFlush(); };
  const std::string failure = work ? paintedWait(app_.gMainForm, flush) : flush();
  if (!failure.empty()) {
    // Nobody knows what reached the disk, so all of it is to be written again.
    before.restoreFlags();
    return bRefused(app_, failure + " (" + document_.strGUID() + ")");
  }
  if (!saved) return false;  // the document on the disk may still name what was removed
  io_.removed().addNoted();
  io_.removed().keepFilesOf(objects_);
  planned->finished();
  document_.unsavedWork().saved(objects_);
  return true;
}

// As they will be when the save is done. What lies under a name that was never written is another
// program's.
PlannedRemovals::Change DocumentSave::removals() {
  RemovedFiles& removed = io_.removed();
  removed.note(document_.colObjRemoved());
  const std::vector<bool>& needed = removed.needed(objects_);
  return io_.plannedRemovals().changeTo(needed.size(), [&](std::size_t place) {
    return !needed[place] && !io_.names().isPromised(removed.all()[place]);
  });
}

}  // namespace velra
