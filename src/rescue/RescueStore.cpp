// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/RescueStore.h"

#include <cstdlib>
#include <ctime>
#include <utility>

#include "base/Paths.h"
#include "rescue/ProcessIdentity.h"

namespace velra {

namespace {

constexpr int kFormat = 1;

// `changed` of a session is the time of its last change. A planned removal is of a save that has
// not been finished.
constexpr const char* kTables = R"(
  CREATE TABLE session(
    id INTEGER PRIMARY KEY AUTOINCREMENT, document TEXT NOT NULL, process TEXT NOT NULL,
    changed INTEGER NOT NULL, ended INTEGER NOT NULL);
  CREATE INDEX session_of_document ON session(document);
  CREATE TABLE object(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, path TEXT NOT NULL,
    class TEXT NOT NULL, title TEXT NOT NULL, bytes BLOB, removed INTEGER NOT NULL,
    size INTEGER NOT NULL, modified INTEGER NOT NULL, inode INTEGER NOT NULL,
    PRIMARY KEY(session, path));
  CREATE TABLE planned(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, position INTEGER NOT NULL,
    path TEXT NOT NULL, bytes BLOB NOT NULL, size INTEGER NOT NULL, modified INTEGER NOT NULL,
    inode INTEGER NOT NULL, PRIMARY KEY(session, position));
  CREATE TABLE removal(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, path TEXT NOT NULL,
    planned INTEGER NOT NULL, PRIMARY KEY(session, path, planned));
  CREATE TABLE replaced(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, path TEXT NOT NULL,
    bytes BLOB NOT NULL);
  CREATE INDEX replaced_of_session ON replaced(session);
)";

std::int64_t now() {
  return std::time(nullptr);
}

// A stamp takes three places; a size below 0 tells that there is no file.
Statement& bindStamp(Statement& statement, int place, const FileStamp& stamp) {
  return statement.number(place, stamp.exists ? static_cast<std::int64_t>(stamp.size) : -1)
      .number(place + 1, stamp.modified)
      .number(place + 2, static_cast<std::int64_t>(stamp.inode));
}

}  // namespace

FileStamp keptStamp(const std::string& path) {
  FileStamp stamp = fileStamp(path);
  stamp.device = 0;
  return stamp;
}

FileStamp stampFrom(const Statement& row, int column) {
  FileStamp stamp;
  stamp.exists = row.number(column) >= 0;
  stamp.size = stamp.exists ? static_cast<std::uint64_t>(row.number(column)) : 0;
  stamp.modified = row.number(column + 1);
  stamp.inode = static_cast<std::uint64_t>(row.number(column + 2));
  return stamp;
}

RescueStore::RescueStore(const std::string& path) : database_(path) {
  makeTables();
}

std::string RescueStore::defaultPath() {
  const auto environment = [](const char* name) -> std::string {
    const char* value = std::getenv(name);
    return value ? value : "";
  };
  // A relative path there would mean another place in each folder.
  const std::string wanted = environment("XDG_STATE_HOME");
  const std::string folder =
      wanted.starts_with('/') ? wanted : environment("HOME") + "/.local/state";
  return strAbsolutePath("velra/rescue.sqlite", folder);
}

void RescueStore::makeTables() {
  Transaction transaction(database_);
  Statement version = database_.prepare("PRAGMA user_version");
  version.next();
  const std::int64_t format = version.number(0);
  if (format > kFormat) throw DatabaseError("it was made by a newer version of this program");
  if (format == 0) {
    database_.run(kTables);
    database_.run("PRAGMA user_version = " + std::to_string(kFormat));
  }
  transaction.commit();
}

SessionId RescueStore::begin(const std::string& document, const std::string& process) {
  database_.prepare("INSERT INTO session(document, process, changed, ended) VALUES(?1, ?2, ?3, ?4)")
      .text(1, document)
      .text(2, process)
      .number(3, now())
      .number(4, static_cast<std::int64_t>(SessionEnd::Running))
      .run();
  return database_.lastRow();
}

void RescueStore::end(SessionId session, SessionEnd how) {
  Transaction transaction(database_);
  database_.prepare("UPDATE session SET ended = ?2 WHERE id = ?1")
      .number(1, session)
      .number(2, static_cast<std::int64_t>(how))
      .run();
  dropPlan(session);  // a program that lives knows how its saves have ended
  deleteIfEmpty(session);
  transaction.commit();
}

void RescueStore::deleteIfEmpty(SessionId session) {
  database_
      .prepare(
          "DELETE FROM session WHERE id = ?1"
          " AND NOT EXISTS(SELECT 1 FROM object WHERE session = ?1)"
          " AND NOT EXISTS(SELECT 1 FROM planned WHERE session = ?1)"
          " AND NOT EXISTS(SELECT 1 FROM removal WHERE session = ?1)"
          " AND NOT EXISTS(SELECT 1 FROM replaced WHERE session = ?1)")
      .number(1, session)
      .run();
}

void RescueStore::keep(SessionId session, const std::vector<KeptObject>& objects,
                       const std::vector<std::string>& paths) {
  Transaction transaction(database_);
  Statement remove = database_.prepare("DELETE FROM object WHERE session = ?1 AND path = ?2");
  for (const std::string& path : paths) remove.number(1, session).text(2, path).run();
  Statement insert =
      database_.prepare("INSERT OR REPLACE INTO object VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)");
  for (const KeptObject& object : objects) {
    insert.number(1, session)
        .text(2, object.path)
        .text(3, object.className)
        .text(4, object.title)
        .bytes(5, object.bytes)
        .number(6, object.removed ? 1 : 0);
    bindStamp(insert, 7, object.stamp).run();
  }
  database_.prepare("UPDATE session SET changed = ?2 WHERE id = ?1")
      .number(1, session)
      .number(2, now())
      .run();
  transaction.commit();
}

void RescueStore::forgetAll(SessionId session) {
  database_.prepare("DELETE FROM object WHERE session = ?1").number(1, session).run();
}

void RescueStore::planSave(SessionId session, const SavePlan& plan) {
  Transaction transaction(database_);
  dropPlan(session);  // one whose end could not be written is not to be carried out after this one
  Statement insert = database_.prepare("INSERT INTO planned VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
  std::int64_t position = 0;
  for (const PlannedFile& file : plan.files) {
    insert.number(1, session).number(2, ++position).text(3, file.path).bytes(4, file.bytes);
    bindStamp(insert, 5, file.stamp).run();
  }
  Statement removal = database_.prepare("INSERT OR IGNORE INTO removal VALUES(?1, ?2, 1)");
  for (const std::string& path : plan.removals) removal.number(1, session).text(2, path).run();
  transaction.commit();
}

void RescueStore::finishSave(SessionId session) {
  Transaction transaction(database_);
  for (const char* statement :
       {"DELETE FROM planned WHERE session = ?1", "DELETE FROM object WHERE session = ?1",
        "DELETE FROM removal WHERE session = ?1 AND planned = 0",
        "UPDATE removal SET planned = 0 WHERE session = ?1"}) {
    database_.prepare(statement).number(1, session).run();
  }
  transaction.commit();
}

void RescueStore::abandonSave(SessionId session) {
  Transaction transaction(database_);
  dropPlan(session);
  transaction.commit();
}

void RescueStore::dropPlan(SessionId session) {
  for (const char* statement : {"DELETE FROM planned WHERE session = ?1",
                                "DELETE FROM removal WHERE session = ?1 AND planned = 1"}) {
    database_.prepare(statement).number(1, session).run();
  }
}

std::optional<SavePlan> RescueStore::openPlan(SessionId session) {
  SavePlan plan;
  Statement files = database_.prepare(
      "SELECT path, bytes, size, modified, inode FROM planned"
      " WHERE session = ?1 ORDER BY position");
  files.number(1, session);
  while (files.next()) {
    plan.files.push_back({files.text(0), files.text(1), stampFrom(files, 2)});
  }
  Statement removals = database_.prepare("SELECT DISTINCT path FROM removal WHERE session = ?1");
  removals.number(1, session);
  while (removals.next()) plan.removals.push_back(removals.text(0));
  if (plan.files.empty() && plan.removals.empty()) return std::nullopt;
  return plan;
}

void RescueStore::removalsDone(SessionId session) {
  Transaction transaction(database_);
  database_.prepare("DELETE FROM removal WHERE session = ?1 AND planned = 0")
      .number(1, session)
      .run();
  transaction.commit();
}

void RescueStore::keepReplaced(SessionId session, const std::string& path,
                               const std::string& bytes) {
  database_.prepare("INSERT INTO replaced VALUES(?1, ?2, ?3)")
      .number(1, session)
      .text(2, path)
      .bytes(3, bytes)
      .run();
}

std::vector<PlannedFile> RescueStore::replaced(SessionId session) {
  std::vector<PlannedFile> found;
  Statement rows = database_.prepare("SELECT path, bytes FROM replaced WHERE session = ?1");
  rows.number(1, session);
  while (rows.next()) found.push_back({rows.text(0), rows.text(1), {}});
  return found;
}

}  // namespace velra
