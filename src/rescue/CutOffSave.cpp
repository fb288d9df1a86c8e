// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/CutOffSave.h"

#include <map>
#include <set>
#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/files/FileMoves.h"
#include "platform/files/Files.h"
#include "platform/files/OwnFile.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueTables.h"

namespace velra {

namespace {

// What a save under another name had made when it was cut off. Under a name that an earlier file
// was to leave, that file may still lie.
std::vector<const MadeFile*> madeSoFar(const CopyPlan& plan, const OwnFiles& own) {
  std::vector<const MadeFile*> made;
  std::map<std::string, bool> left;  // where files were to be moved from
  for (const MadeFile& file : plan.made) {
    const auto before = left.find(file.path);
    const bool done = own.owns(file.path) && (before == left.end() || before->second);
    if (!file.movedFrom.empty()) left[file.movedFrom] = done;
    if (done) made.push_back(&file);
  }
  return made;
}

}  // namespace

std::string CutOffSave::finish() {
  // Behind a folder that is away, as on a medium that is not there, nothing can be told.
  if (!bFolderExists(folderOf(work_.document))) return folderOf(work_.document) + texts_.isNotThere;
  std::string failure = std::visit([this](const auto& plan) { return carryOut(plan); },
                                   store_.plans().open(work_.session));
  if (!failure.empty()) return failure;
  removeFiles();
  store_.end(work_.session, work_.end);
  return {};
}

std::string CutOffSave::carryOut(const SavePlan& plan) {
  if (plan.files.empty()) return {};
  std::vector<FoundFile> unwritten;
  std::string changed;
  for (const PlannedFile& planned : plan.files) {
    FoundFile file{&planned, FileState::Untouched, {}};
    const std::string reason = strStateOf(planned, file.state, file.bytes);
    if (!reason.empty()) return reason + " (" + planned.path + ")";
    if (file.state == FileState::Changed) changed = planned.path;
    if (file.state != FileState::Written) unwritten.push_back(std::move(file));
  }
  if (!changed.empty()) {
    keepAsWork(unwritten);
    store_.plans().abandon(work_.session);
    outcome_ = texts_.leftSince + changed + texts_.changedSince;
    return {};
  }
  std::string failure = writeFiles(unwritten);
  if (!failure.empty()) return failure;
  store_.plans().finishSave(work_.session);
  outcome_ = texts_.finished;
  return {};
}

void CutOffSave::keepAsWork(const std::vector<FoundFile>& files) {
  std::vector<KeptObject> objects;
  for (const FoundFile& file : files) {
    const std::string& path = file.planned->path;
    objects.push_back({path, "", path.substr(path.rfind('/') + 1), file.planned->bytes, false,
                       file.planned->stamp});
  }
  store_.keep(work_.session, objects);
}

std::string CutOffSave::bringTo(const FoundFile& file) {
  const auto& [path, bytes, stamp, blocks] = *file.planned;
  if (!keptStamp(path).exists) {
    makeFolders(folderOf(path));
    return writeNewFile(path, bytes);
  }
  // Most likely torn, but nobody can be sure, so nothing of it is lost.
  if (file.state == FileState::Torn) store_.keepReplaced(work_.session, path, file.bytes);
  return writeFileInPlace(path, bytes);
}

// Brings all to their new bytes, up to the disk.
std::string CutOffSave::writeFiles(const std::vector<FoundFile>& files) {
  std::set<std::string> folders;
  for (const FoundFile& file : files) {
    const std::string& path = file.planned->path;
    const std::string reason = bringTo(file);
    if (!reason.empty()) return reason + " (" + path + ")";
    folders.insert(folderOf(path));
  }
  for (const std::string& folder : folders) {
    const std::string reason = syncFolder(folder);
    if (!reason.empty()) return reason + " (" + folder + ")";
  }
  return {};
}

// The document's own file comes last, and it alone tells whether there is a copy.
std::string CutOffSave::carryOut(const CopyPlan& plan) {
  FoundFile document{&plan.document, FileState::Untouched, {}};
  const std::string& path = plan.document.path;
  if (!bFolderExists(folderOf(path))) return folderOf(path) + texts_.isNotThere;
  if (isOpen(store_, path)) return path + texts_.isOpen;
  std::string failure = emptyHidden(plan);
  if (!failure.empty()) return failure + " (" + path + ")";
  if (!plan.document.bytes.empty()) {
    failure = strStateOf(plan.document, document.state, document.bytes);
  } else if (keptStamp(path) != plan.document.stamp) {
    // The whole plan never came here, so that nobody knows whether it was this save that wrote it:
    // what it has made stays, and what was kept as well.
    store_.plans().abandon(work_.session);
    return {};
  }
  if (failure.empty() && document.state == FileState::Untouched) failure = undo(plan);
  if (failure.empty() && document.state == FileState::Torn) failure = writeFiles({document});
  if (!failure.empty()) return failure + " (" + path + ")";
  if (document.state == FileState::Untouched) {
    store_.plans().abandon(work_.session);
    outcome_ = texts_.underTheName + path + texts_.undone;
  } else {
    store_.plans().finishCopy(work_.session);
  }
  return {};
}

// Moves a file that was made back to where it came from, or deletes it.
std::string CutOffSave::takeBack(const std::string& place, const MadeFile& file) {
  const std::string& from = file.movedFrom;
  try {
    if (!from.empty() && !bFileExists(from)) MoveFileTo(place, from);
  } catch (const RunTimeError& error) {
    return error.description();
  }
  return bFileExists(place) ? deleteFile(place) : std::string();
}

// What is still in the hidden folder never came to the document.
std::string CutOffSave::emptyHidden(const CopyPlan& plan) {
  if (plan.hidden.empty() || !bFolderExists(plan.hidden)) return {};
  for (const MadeFile& file : plan.made) {
    const std::string place = plan.hidden + file.path.substr(folderOf(file.path).size());
    if (!bPlainFileExists(place)) continue;
    std::string reason = takeBack(place, file);
    if (!reason.empty()) return reason;
  }
  removeFolderIfEmpty(plan.hidden);
  return {};
}

// Backward, since a file may have taken the name that an earlier one left.
std::string CutOffSave::undo(const CopyPlan& plan) {
  const OwnFiles own(plan.document.path);
  const std::vector<const MadeFile*> made = madeSoFar(plan, own);
  for (auto at = made.rbegin(); at != made.rend(); ++at) {
    std::string reason = takeBack((*at)->path, **at);
    if (!reason.empty()) return reason;
  }
  removeFolderIfEmpty(own.folder());
  return {};
}

// A file that has changed since, or been made anew, is not the one that was to go.
void CutOffSave::removeFiles() {
  const OwnFiles own(work_.document);
  for (const PlannedRemoval& removal : store_.plans().dueRemovals(work_.session)) {
    if (own.owns(removal.path) && keptStamp(removal.path) == removal.stamp) {
      deleteFile(removal.path);
    }
  }
  store_.plans().removalsDone(work_.session);
}

}  // namespace velra
