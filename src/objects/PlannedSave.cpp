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
                         const std::vector<std::string>& removals)
    : rescue_(storeOf(io)) {
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
  for (const std::string& guid : removals) {
    const std::string path = strAbsolutePath(guid);
    if (!io.guard().mayDelete(path)) continue;
    io.guard().spare(path, rescue_);
    all.removals.push_back({path, fileStamp(path)});
  }
  if (rescue_) planned_ = rescue_->plan(all).empty();
}

PlannedSave::PlannedSave(IOManager& io, const AVDocument& document, std::vector<MadeFile> made)
    : rescue_(storeOf(io)), copies_(true) {
  if (!rescue_) return;
  try {
    planned_ = rescue_->plan(CopyPlan{plannedFile(document, io), std::move(made)}).empty();
  } catch (const RunTimeError&) {
    return;  // as above
  }
}

PlannedSave::~PlannedSave() {
  if (rescue_ && std::uncaught_exceptions() == errors_) rescue_->abandonSave();
}

void PlannedSave::finished() {
  if (!rescue_) return;
  if (planned_ && !copies_) {
    rescue_->finishSave();
  } else {
    rescue_->finishCopy();
  }
  rescue_ = nullptr;
}

}  // namespace velra
