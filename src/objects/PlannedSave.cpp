// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/PlannedSave.h"

#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "platform/files/Files.h"
#include "rescue/DocumentRescue.h"
#include "rescue/TornFile.h"
#include "store/IOManager.h"

namespace velra {

namespace {

DocumentRescue* storeOf(const IOManager& io) {
  return io.bFileSystem() ? io.rescue() : nullptr;
}

// The file of an object as it will be, beside what it is now.
PlannedFile plannedFile(const ObjectBase& object, IOManager& io) {
  PlannedFile file{strAbsolutePath(object.strGUID()), {}, {}, {}};
  file.stamp = fileStamp(file.path);
  const std::string present = file.stamp.exists ? readFile(file.path).bytes : std::string();
  io.guard().spare(file.path, present, io.rescue());
  if (!io.rescue()) return file;
  file.bytes = object.fileBytes();
  file.blocks = blocksOf(present);
  return file;
}

void addToPlan(const RegisteredObject& object, IOManager& io, SavePlan& plan) {
  const auto* described = as<const ObjectBase>(&object);
  if (!described || !described->bChanged()) return;
  try {
    plan.files.push_back(plannedFile(*described, io));
  } catch (const RunTimeError&) {
    return;  // the save itself will tell of a value that no file can hold
  }
}

}  // namespace

PlannedSave::PlannedSave(IOManager& io, const RegisteredList& objects,
                         PlannedRemovals::Change removals)
    : rescue_(storeOf(io)),
      known_(io.plannedRemovals()),
      change_(std::move(removals)),
      toldNowhere_(!io.rescue()) {
  SavePlan all;
  const RegisteredObject* document = nullptr;
  for (const RegisteredRef& object : objects) {
    if (object->kind() == ObjectKind::AVDocument) {
      document = object.get();  // is written last
    } else {
      addToPlan(*object, io, all);
    }
  }
  if (document) addToPlan(*document, io, all);
  const auto pathAt = [&](std::size_t place) { return strAbsolutePath(io.removed().all()[place]); };
  for (const std::size_t place : change_.more) {
    std::string path = pathAt(place);
    const auto stamp = io.guard().goes(path, rescue_);
    if (stamp) all.removals.push_back({std::move(path), *stamp});
  }
  all.addsRemovals = !change_.all;
  for (const std::size_t place : change_.stays) all.stays.push_back(pathAt(place));
  if (rescue_) planned_ = rescue_->plan(all).empty();
  if (rescue_ && !planned_) known_.forget();
}

PlannedSave::PlannedSave(IOManager& io, const std::string& documentPath, std::vector<MadeFile> made,
                         std::string hiddenFolder)
    : rescue_(storeOf(io)),
      known_(io.plannedRemovals()),
      hidden_(std::move(hiddenFolder)),
      copies_(true) {
  const std::string path = strAbsolutePath(documentPath);
  if (rescue_ && !made.empty()) tell({{path, {}, fileStamp(path), {}}, std::move(made), hidden_});
}

void PlannedSave::tell(IOManager& io, const AVDocument& document, std::vector<MadeFile> made) {
  if (!rescue_) return;
  try {
    tell({plannedFile(document, io), std::move(made), hidden_});
  } catch (const RunTimeError&) {
    return;  // as above
  }
}

void PlannedSave::tell(const CopyPlan& plan) {
  planned_ = rescue_->plan(plan).empty();
  if (!planned_) known_.forget();
}

PlannedSave::~PlannedSave() {
  if (rescue_ && std::uncaught_exceptions() == errors_) rescue_->abandonSave();
}

void PlannedSave::finished() {
  if (!copies_ && (planned_ || toldNowhere_)) known_.told(change_);
  if (!rescue_) return;
  if (planned_ && !copies_) {
    rescue_->finishSave();
  } else {
    rescue_->finishCopy();
  }
  rescue_ = nullptr;
}

}  // namespace velra
