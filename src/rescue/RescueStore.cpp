// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/RescueStore.h"

#include <cstdlib>
#include <ctime>
#include <utility>

#include "base/Paths.h"
#include "rescue/RescueTables.h"

namespace velra {

namespace {

std::int64_t now() {
  return std::time(nullptr);
}

}  // namespace

RescueStore::RescueStore(const std::string& path) : database_(path) {
  makeRescueTables(database_);
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
  // A program that lives knows how its saves have ended; an error may have ended one amid its
  // files.
  if (how != SessionEnd::Error) plans().drop(session);
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
  while (rows.next()) found.push_back({rows.text(0), rows.text(1), {}, {}});
  return found;
}

}  // namespace velra
