// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/InterruptedSave.h"

#include <set>

#include "base/Paths.h"
#include "platform/files/Files.h"
#include "platform/files/OwnFile.h"
#include "rescue/KeptWorkList.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"

namespace velra {

namespace {

// Why a file could not be brought to its bytes, or "".
std::string bringTo(RescueStore& store, SessionId session, const PlannedFile& file) {
  const FileStamp present = keptStamp(file.path);
  if (!present.exists) {
    makeFolders(folderOf(file.path));
    return writeNewFile(file.path, file.bytes);
  }
  const std::string bytes = readFile(file.path).bytes;
  if (bytes == file.bytes) return {};
  // Torn, or from another hand since: nobody can tell, so nothing of it is lost.
  if (present != file.stamp) store.keepReplaced(session, file.path, bytes);
  return writeFileInPlace(file.path, file.bytes);
}

// The same for all files of a plan, up to the disk.
std::string writeFiles(RescueStore& store, SessionId session, const SavePlan& plan) {
  std::set<std::string> folders;
  for (const PlannedFile& file : plan.files) {
    const std::string reason = bringTo(store, session, file);
    if (!reason.empty()) return reason + " (" + file.path + ")";
    folders.insert(folderOf(file.path));
  }
  for (const std::string& folder : folders) {
    const std::string reason = syncFolder(folder);
    if (!reason.empty()) return reason + " (" + folder + ")";
  }
  return {};
}

void removeFiles(const std::string& document, const SavePlan& plan) {
  std::string folder;
  const std::string base = strSplitPath(document, folder);
  const std::string own = withSeparator(strAbsolutePath(folder)) + base + "_files/";
  for (const std::string& path : plan.removals) {
    if (isOwnFile(path, own, base + "_")) deleteFile(path);
  }
}

}  // namespace

std::string finishInterruptedSaves(RescueStore& store, const std::string& document) {
  std::string outcome;
  for (const KeptWork& work : interruptedSaves(store, document)) {
    if (mayBeRunning(work.process)) continue;
    const auto plan = store.openPlan(work.session);
    if (!plan) continue;
    const std::string failure = writeFiles(store, work.session, *plan);
    if (!failure.empty()) return "A save that was cut off could not be finished: " + failure;
    removeFiles(document, *plan);
    if (!plan->files.empty()) {
      store.finishSave(work.session);
      outcome = "A save that was cut off has been finished.";
    }
    store.removalsDone(work.session);
    store.end(work.session, work.end);
  }
  return outcome;
}

}  // namespace velra
