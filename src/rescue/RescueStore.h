// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/database/Database.h"
#include "rescue/RescueRecords.h"

namespace velra {

/// The stamp of a file as the store compares it: without the device, whose number another start of
/// the machine may change.
FileStamp keptStamp(const std::string& path);

/// The stamp in three columns of a row.
FileStamp stampFrom(const Statement& row, int column);

/// What must outlive the program though no file of a document holds it: changes that were not saved
/// yet, the bytes of a save under way, and files that a save has replaced or will delete. Several
/// programs share one file. Used by one thread; every member raises DatabaseError, and what a
/// member changes has reached the disk when it returns, or is as it was.
class RescueStore {
 public:
  explicit RescueStore(const std::string& path);

  /// `$XDG_STATE_HOME/velra/rescue.sqlite`, below ~/.local/state when that is not set.
  static std::string defaultPath();

  SessionId begin(const std::string& document, const std::string& process);
  /// A session of which nothing is kept goes.
  void end(SessionId session, SessionEnd how);

  /// Keeps objects in place of what was kept of them; of `paths` nothing is kept any more.
  void keep(SessionId session, const std::vector<KeptObject>& objects,
            const std::vector<std::string>& paths = {});
  void forgetAll(SessionId session);

  /// To be called before the first file of a save is touched, and after the last one has reached
  /// the disk: then what was kept has been saved. `abandonSave` is for one that failed and was
  /// told.
  void planSave(SessionId session, const SavePlan& plan);
  void finishSave(SessionId session);
  void abandonSave(SessionId session);

  /// The plan of a save that has not been finished, or removals that are still to be done.
  std::optional<SavePlan> openPlan(SessionId session);
  void removalsDone(SessionId session);

  /// Keeps the bytes of another program's file that goes, or is written over.
  void keepReplaced(SessionId session, const std::string& path, const std::string& bytes);
  std::vector<PlannedFile> replaced(SessionId session);

  /// A session of which nothing is kept goes; to be called for one that has ended.
  void deleteIfEmpty(SessionId session);
  Database& database() { return database_; }

 private:
  void makeTables();
  void dropPlan(SessionId session);

  Database database_;
};

}  // namespace velra
