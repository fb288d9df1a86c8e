// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/SavePlans.h"

#include <utility>

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/database/Database.h"
#include "rescue/RescueTables.h"

namespace velra {

void SavePlans::runAll(SessionId session, std::initializer_list<const char*> statements) {
  for (const char* statement : statements) {
    database_.prepare(statement).number(1, session).run();
  }
}

void SavePlans::drop(SessionId session) {
  runAll(session, {"DELETE FROM planned WHERE session = ?1", "DELETE FROM made WHERE session = ?1",
                   "DELETE FROM removal WHERE session = ?1 AND planned = 1"});
}

void SavePlans::insert(SessionId session, const std::vector<PlannedFile>& files) {
  Statement row = database_.prepare("INSERT INTO planned VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)");
  std::int64_t position = 0;
  for (const PlannedFile& file : files) {
    row.number(1, session).number(2, ++position).text(3, file.path).bytes(4, file.bytes);
    bindStamp(row, 5, file.stamp).bytes(8, file.blocks).run();
  }
}

// One row for all: as many rows as files would cost a tenth of the whole save. What most paths
// begin with is more than half of them.
void SavePlans::insert(SessionId session, const std::vector<MadeFile>& made) {
  if (made.empty()) return;
  const std::string folder = folderOf(made.front().path);
  std::string paths;
  std::string movedFrom;
  for (const MadeFile& file : made) {
    paths.append(file.path, file.path.starts_with(folder) ? folder.size() : 0) += '\0';
    (movedFrom += file.movedFrom) += '\0';
  }
  database_.prepare("INSERT INTO made VALUES(?1, ?2, ?3, ?4)")
      .number(1, session)
      .text(2, folder)
      .bytes(3, paths)
      .bytes(4, movedFrom)
      .run();
}

void SavePlans::planSave(SessionId session, const SavePlan& plan) {
  Transaction transaction(database_);
  drop(session);
  insert(session, plan.files);
  Statement row = database_.prepare("INSERT OR IGNORE INTO removal VALUES(?1, ?2, 1, ?3, ?4, ?5)");
  for (const PlannedRemoval& removal : plan.removals) {
    row.number(1, session).text(2, removal.path);
    bindStamp(row, 3, removal.stamp).run();
  }
  transaction.commit();
}

void SavePlans::planCopy(SessionId session, const CopyPlan& plan) {
  Transaction transaction(database_);
  drop(session);
  insert(session, {plan.document});
  insert(session, plan.made);
  transaction.commit();
}

void SavePlans::finishSave(SessionId session) {
  Transaction transaction(database_);
  runAll(session,
         {"DELETE FROM planned WHERE session = ?1", "DELETE FROM object WHERE session = ?1",
          "DELETE FROM removal WHERE session = ?1 AND planned = 0",
          "UPDATE removal SET planned = 0 WHERE session = ?1"});
  transaction.commit();
}

void SavePlans::finishCopy(SessionId session) {
  Transaction transaction(database_);
  drop(session);
  runAll(session, {"DELETE FROM object WHERE session = ?1"});
  transaction.commit();
}

void SavePlans::abandon(SessionId session) {
  Transaction transaction(database_);
  drop(session);
  transaction.commit();
}

SavePlans::Open SavePlans::open(SessionId session) {
  SavePlan plan{files(session), removals(session, 1)};
  CopyPlan copy{{}, made(session)};
  if (!copy.made.empty() && !plan.files.empty()) {
    copy.document = std::move(plan.files.front());
    return copy;
  }
  if (plan.files.empty() && plan.removals.empty()) return {};
  return plan;
}

std::vector<PlannedFile> SavePlans::files(SessionId session) {
  std::vector<PlannedFile> found;
  Statement rows = database_.prepare(
      "SELECT path, bytes, size, modified, inode, blocks FROM planned"
      " WHERE session = ?1 ORDER BY position");
  rows.number(1, session);
  while (rows.next()) {
    found.push_back({rows.text(0), rows.text(1), stampFrom(rows, 2), rows.text(5)});
  }
  return found;
}

std::vector<PlannedRemoval> SavePlans::removals(SessionId session, int planned) {
  std::vector<PlannedRemoval> found;
  Statement rows = database_.prepare(
      "SELECT path, size, modified, inode FROM removal WHERE session = ?1 AND planned <= ?2"
      " ORDER BY rowid");
  rows.number(1, session).number(2, planned);
  while (rows.next()) found.push_back({rows.text(0), stampFrom(rows, 1)});
  return found;
}

std::vector<PlannedRemoval> SavePlans::dueRemovals(SessionId session) {
  return removals(session, 0);
}

std::vector<MadeFile> SavePlans::made(SessionId session) {
  std::vector<MadeFile> found;
  Statement row =
      database_.prepare("SELECT folder, paths, moved_from FROM made WHERE session = ?1");
  row.number(1, session);
  if (!row.next()) return found;
  const std::string folder = row.text(0);
  const std::vector<std::string> paths = split(row.text(1), '\0');
  const std::vector<std::string> movedFrom = split(row.text(2), '\0');
  for (std::size_t i = 0; i < paths.size() && i < movedFrom.size(); ++i) {
    if (paths[i].empty()) continue;
    found.push_back({paths[i].starts_with('/') ? paths[i] : folder + paths[i], movedFrom[i]});
  }
  return found;
}

void SavePlans::removalsDone(SessionId session) {
  runAll(session, {"DELETE FROM removal WHERE session = ?1 AND planned = 0"});
}

}  // namespace velra
