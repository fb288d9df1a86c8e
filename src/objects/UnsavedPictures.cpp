// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/UnsavedPictures.h"

#include <algorithm>

#include "base/Paths.h"
#include "protocol/OpenDocument.h"
#include "rescue/DocumentRescue.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

bool isPicture(const RegisteredRef& object) {
  return object->kind() == ObjectKind::MediaObject;
}

}  // namespace

void dropUnsavedPictures(OpenDocument& document, bool keep) {
  const RegisteredList changed = document.collObjects().changedObjects();
  const bool workIsKept = keep && !std::all_of(changed.begin(), changed.end(), isPicture);
  for (const RegisteredRef& object : changed) {
    if (!isPicture(object)) continue;
    const auto io = document.io();
    if (workIsKept && io->rescue()) io->rescue()->keepPicture(strAbsolutePath(object->strGUID()));
    io->RemoveGUID(object->strGUID());
  }
}

}  // namespace velra
