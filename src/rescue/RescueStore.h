// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "platform/database/Database.h"
#include "rescue/RescueRecords.h"
#include "rescue/SavePlans.h"

namespace velra {

/// What must outlive the program though no file of a document holds it: changes that were not saved
/// yet, the plans of saves under way, and bytes that a save has replaced. Several programs share
/// one file. Used by one thread; every member raises DatabaseError, and what a member changes has
/// reached the disk when it returns, or is as it was.
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

  /// Keeps the bytes of another program's file that goes, or is written over.
  void keepReplaced(SessionId session, const std::string& path, const std::string& bytes);
  std::vector<PlannedFile> replaced(SessionId session);

  /// A session of which nothing is kept goes; to be called for one that has ended.
  void deleteIfEmpty(SessionId session);

  SavePlans plans() { return SavePlans(database_); }
  Database& database() { return database_; }

 private:
  Database database_;
};

}  // namespace velra
