// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RemovedFiles.h"

#include <utility>

#include "store/ObjectRegistry.h"

namespace velra {

// An object that was removed before its first save has never had a file, so its number was free for
// a new object. The file that this one is saved under must not go for the other's sake: after each
// save the living win over the list.
//
// A MediaObject is not asked. The picture of a removed segment stays registered for as long as the
// document is open, though nothing needs its file any more, and while that file lies there no new
// picture gets its name.
void RemovedFiles::keepFilesOf(ObjectRegistry& objects) {
  std::erase_if(identifiers_, [&](const std::string& guid) {
    const RegisteredRef object = objects.find(guid);
    return object && object->kind() != ObjectKind::MediaObject;
  });
}

std::string RemovedFiles::deleteAll(
    const std::function<std::string(const std::string&)>& deleteFile) {
  std::string failed;
  std::string lastReason;
  for (const std::string& guid : std::exchange(identifiers_, {})) {
    const std::string reason = deleteFile(guid);
    if (reason.empty()) continue;
    failed += (failed.empty() ? "" : " ") + guid;
    lastReason = reason;
  }
  return failed.empty() ? std::string() : failed + ": " + lastReason;
}

}  // namespace velra
