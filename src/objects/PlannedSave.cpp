// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/PlannedSave.h"

#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "rescue/DocumentRescue.h"
#include "store/IOManager.h"

namespace velra {

namespace {

void addToPlan(const RegisteredObject& object, SavePlan& plan) {
  const auto* described = as<const ObjectBase>(&object);
  if (!described || !described->bChanged()) return;
  try {
    const std::string path = strAbsolutePath(object.strGUID());
    plan.files.push_back({path, described->fileBytes(), fileStamp(path)});
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
  for (const std::string& guid : removals) all.removals.push_back(strAbsolutePath(guid));
  // A store that fails does not keep the files from being written.
  if (!rescue_->planSave(std::move(all)).empty()) rescue_ = nullptr;
}

PlannedSave::~PlannedSave() {
  if (rescue_) rescue_->abandonSave();
}

void PlannedSave::finished() {
  if (rescue_) rescue_->finishSave();
  rescue_ = nullptr;
}

}  // namespace velra
