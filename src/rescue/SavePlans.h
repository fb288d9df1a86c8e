// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <variant>
#include <vector>

#include "rescue/RescueRecords.h"

namespace velra {

class Database;

/// The saves under way in a store, each of one session, and the files that are to go when their
/// documents are closed. Every member raises DatabaseError.
class SavePlans {
 public:
  explicit SavePlans(Database& database) : database_(database) {}

  /// To be called before the first file of a save is touched. A plan of the session whose end could
  /// not be written is not to be carried out any more.
  void planSave(SessionId session, const SavePlan& plan);
  void planCopy(SessionId session, const CopyPlan& plan);

  /// To be called when the last file has reached the disk: what was kept has been saved.
  void finishSave(SessionId session);
  /// The same for a save under another name, or one that could not be planned.
  void finishCopy(SessionId session);

  /// Drops the plan of a save that failed and was told.
  void abandon(SessionId session);

  /// What has not been finished; a SavePlan has all that is to go, also after saves that have.
  using Open = std::variant<std::monostate, SavePlan, CopyPlan>;
  Open open(SessionId session);

  /// What is to go after saves that have been finished, and that it has gone.
  std::vector<PlannedRemoval> dueRemovals(SessionId session);
  void removalsDone(SessionId session);

  /// The part of `abandon` for whoever has a transaction open.
  void drop(SessionId session);

 private:
  void insert(SessionId session, const std::vector<PlannedFile>& files);
  void insertMade(SessionId session, const CopyPlan& plan);
  std::vector<PlannedFile> files(SessionId session);
  void findMade(SessionId session, CopyPlan& plan);
  void runAll(SessionId session, std::initializer_list<const char*> statements);

  Database& database_;
};

}  // namespace velra
