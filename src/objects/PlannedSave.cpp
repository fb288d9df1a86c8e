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

PlannedFile plannedFile(const ObjectBase& object) {
  PlannedFile file{strAbsolutePath(object.strGUID()), object.fileBytes(), {}, {}};
  file.stamp = fileStamp(file.path);
  if (file.stamp.exists) file.blocks = blocksOf(readFile(file.path).bytes);
  return file;
}

void addToPlan(const RegisteredObject& object, SavePlan& plan) {
  const auto* described = as<const ObjectBase>(&object);
  if (!described || !described->bChanged()) return;
  try {
    plan.files.push_back(plannedFile(*described));
  } catch (const RunTimeError&) {
    return;  // the save itself will tell of a value that no file can hold
  }
}

}  // namespace

PlannedSave::PlannedSave(const IOManager& io, const RegisteredList& objects,
                         const std::vector<std::string>& removals)
    : rescue_(io.rescue()) {
  if (!rescue_) return;
  SavePlan all;
  const RegisteredObject* document = nullptr;
  for (const RegisteredRef& object : objects) {
    if (object->kind() == ObjectKind::AVDocument) {
      document = object.get();  // is written last
    } else {
      addToPlan(*object, all);
    }
  }
  if (document) addToPlan(*document, all);
  for (const std::string& guid : removals) {
    const std::string path = strAbsolutePath(guid);
    all.removals.push_back({path, fileStamp(path)});
  }
  planned_ = rescue_->plan(all).empty();
}

PlannedSave::PlannedSave(const IOManager& io, const AVDocument& document,
                         std::vector<MadeFile> made)
    : rescue_(io.rescue()), copies_(true) {
  if (!rescue_) return;
  try {
    planned_ = rescue_->plan(CopyPlan{plannedFile(document), std::move(made)}).empty();
  } catch (const RunTimeError&) {
    return;  // as above
  }
}

PlannedSave::~PlannedSave() {
  if (rescue_) rescue_->abandonSave();
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
