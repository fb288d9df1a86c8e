// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/SavePlans.h"

#include <utility>

#include "base/Text.h"
#include "platform/database/Database.h"
#include "rescue/PathRow.h"
#include "rescue/RemovalRows.h"
#include "rescue/RescueTables.h"

namespace velra {

void SavePlans::runAll(SessionId session, std::initializer_list<const char*> statements) {
  for (const char* statement : statements) {
    database_.prepare(statement).number(1, session).run();
  }
}

void SavePlans::drop(SessionId session) {
  runAll(session,
         {"DELETE FROM planned WHERE session = ?1", "DELETE FROM made WHERE session = ?1"});
  RemovalRows(database_).drop(session);
}

void SavePlans::insert(SessionId session, const std::vector<PlannedFile>& files) {
  Statement row = database_.prepare("INSERT INTO planned VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)");
  std::int64_t position = 0;
  for (const PlannedFile& file : files) {
    row.number(1, session).number(2, ++position).text(3, file.path).bytes(4, file.bytes);
    bindStamp(row, 5, file.stamp).bytes(8, file.blocks).run();
  }
}

void SavePlans::insertMade(SessionId session, const CopyPlan& plan) {
  if (plan.made.empty()) return;
  PathRow row;
  std::string movedFrom;
  const auto add = [&](const MadeFile& file) {
    row.add(file.path);
    (movedFrom += file.movedFrom) += '\0';
  };
  for (const MadeFile& file : plan.made) add(file);
  if (!plan.hidden.empty()) add({plan.hidden, {}});
  database_.prepare("INSERT INTO made VALUES(?1, ?2, ?3, ?4)")
      .number(1, session)
      .text(2, row.folder)
      .bytes(3, row.paths)
      .bytes(4, movedFrom)
      .run();
}

void SavePlans::planSave(SessionId session, const SavePlan& plan) {
  Transaction transaction(database_);
  drop(session);
  insert(session, plan.files);
  RemovalRows(database_).plan(session, plan);
  transaction.commit();
}

void SavePlans::planCopy(SessionId session, const CopyPlan& plan) {
  Transaction transaction(database_);
  drop(session);
  insert(session, {plan.document});
  insertMade(session, plan);
  transaction.commit();
}

void SavePlans::finishSave(SessionId session) {
  Transaction transaction(database_);
  runAll(session,
         {"DELETE FROM planned WHERE session = ?1", "DELETE FROM object WHERE session = ?1"});
  RemovalRows(database_).finish(session);
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
  SavePlan plan{files(session), RemovalRows(database_).dueThen(session)};
  CopyPlan copy;
  findMade(session, copy);
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

std::vector<PlannedRemoval> SavePlans::dueRemovals(SessionId session) {
  return RemovalRows(database_).due(session);
}

void SavePlans::findMade(SessionId session, CopyPlan& plan) {
  Statement row =
      database_.prepare("SELECT folder, paths, moved_from FROM made WHERE session = ?1");
  row.number(1, session);
  if (!row.next()) return;
  const std::vector<std::string> paths = PathRow{row.text(0), row.text(1)}.list();
  const std::vector<std::string> movedFrom = split(row.text(2), '\0');
  for (std::size_t i = 0; i < paths.size() && i < movedFrom.size(); ++i) {
    plan.made.push_back({paths[i], movedFrom[i]});
  }
  if (plan.made.empty() || !plan.made.back().path.ends_with('/')) return;
  plan.hidden = std::move(plan.made.back().path);
  plan.made.pop_back();
}

void SavePlans::removalsDone(SessionId session) {
  RemovalRows(database_).done(session);
}

}  // namespace velra
