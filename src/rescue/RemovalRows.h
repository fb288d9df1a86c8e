// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "rescue/RescueRecords.h"

namespace velra {

class Database;

/// The files of a store that go when their documents are closed, by session: those of saves that
/// have been finished, which are due, and what a save under way will change in that. A save adds a
/// row, so that it costs what it removes and not what was removed before. Every member raises
/// DatabaseError.
class RemovalRows {
 public:
  explicit RemovalRows(Database& database) : database_(database) {}

  /// What a save will change; `finish` carries it out, `drop` forgets it.
  void plan(SessionId session, const SavePlan& save);
  void finish(SessionId session);
  void drop(SessionId session);

  /// What is due, each path once, with what was told of it last.
  std::vector<PlannedRemoval> due(SessionId session);
  /// The same as if the save under way had been finished.
  std::vector<PlannedRemoval> dueThen(SessionId session);

  /// All that was due has gone.
  void done(SessionId session);

 private:
  enum class Kind { Due, Goes, Stays };

  struct Found;
  Found found(SessionId session);
  void insert(SessionId session, Kind kind, const std::vector<PlannedRemoval>& removals);
  void remove(SessionId session, Kind first, Kind last);

  Database& database_;
};

}  // namespace velra
