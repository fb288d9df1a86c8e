// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/UnsavedWork.h"

#include <string>
#include <utility>
#include <vector>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "objects/ObjectBase.h"
#include "rescue/DocumentRescue.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr std::chrono::milliseconds kAtATime{3};

}  // namespace

void UnsavedWork::removed(const RegisteredObject& object) {
  removed_.push_back({object.strGUID(), object.className(), object.strTitle(), "", true, {}});
}

bool UnsavedWork::keepSome(ObjectRegistry& objects, const IOManager& io) {
  const auto end = Clock::now() + kAtATime;
  io.rescue()->keepAgain();
  // What was removed comes first: a new object may have its identifier.
  return keepRemoved(io, end) || keepChanged(objects, io, end);
}

bool UnsavedWork::keepRemoved(const IOManager& io, Clock::time_point end) {
  std::vector<KeptObject> kept;
  std::vector<std::string> neverSaved;
  while (!removed_.empty() && Clock::now() < end) {
    KeptObject state = std::move(removed_.front());
    removed_.pop_front();
    state.path = strAbsolutePath(state.path);
    state.stamp = fileStamp(state.path);
    if (state.stamp.exists) {
      kept.push_back(std::move(state));
    } else {
      neverSaved.push_back(std::move(state.path));
    }
  }
  if (!kept.empty() || !neverSaved.empty()) {
    io.rescue()->keep(std::move(kept), std::move(neverSaved));
  }
  return !removed_.empty();
}

bool UnsavedWork::keepChanged(ObjectRegistry& objects, const IOManager& io, Clock::time_point end) {
  std::vector<KeptObject> kept;
  ObjectList one;
  while (Clock::now() < end && !(one = objects.takeWritten(1)).empty()) {
    const auto* described = as<const ObjectBase>(one.front().get());
    if (!described) continue;
    const std::string path = strAbsolutePath(described->strGUID());
    try {
      kept.push_back({path, described->className(), described->strTitle(), described->fileBytes(),
                      false, fileStamp(path)});
    } catch (const RunTimeError&) {
      continue;  // a value that no file can hold: a save will tell of it
    }
  }
  if (!kept.empty()) io.rescue()->keep(std::move(kept), {});
  return objects.anyWritten();
}

void UnsavedWork::saved(ObjectRegistry& objects) {
  removed_.clear();
  objects.forgetWritten();
}

}  // namespace velra
