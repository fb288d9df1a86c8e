// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/RescueTables.h"

namespace velra {

namespace {

constexpr int kFormat = 4;

// `changed` of a session is the time of its last change.
constexpr const char* kWorkTables = R"(
  CREATE TABLE session(
    id INTEGER PRIMARY KEY AUTOINCREMENT, document TEXT NOT NULL, process TEXT NOT NULL,
    changed INTEGER NOT NULL, ended INTEGER NOT NULL);
  CREATE INDEX session_of_document ON session(document);
  CREATE TABLE object(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, path TEXT NOT NULL,
    class TEXT NOT NULL, title TEXT NOT NULL, bytes BLOB, removed INTEGER NOT NULL,
    size INTEGER NOT NULL, modified INTEGER NOT NULL, inode INTEGER NOT NULL,
    PRIMARY KEY(session, path));
  CREATE TABLE replaced(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, path TEXT NOT NULL,
    bytes BLOB NOT NULL);
  CREATE INDEX replaced_of_session ON replaced(session);
)";

// `blocks` tells what a planned file writes over. Removals are due, or of a save that has not been
// finished, or not to be due any more when it is (`RemovalRows`). A file that is made has
// been moved, or comes from nowhere. All removals and all files made of a save stand in one row,
// each path with a zero byte behind it, and without the folder when it is in that. The last path of
// files made ends in a separator when it is the hidden folder in which they are at first.
constexpr const char* kPlanTables = R"(
  DROP TABLE IF EXISTS planned;
  DROP TABLE IF EXISTS removal;
  DROP TABLE IF EXISTS made;
  CREATE TABLE planned(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE, position INTEGER NOT NULL,
    path TEXT NOT NULL, bytes BLOB NOT NULL, size INTEGER NOT NULL, modified INTEGER NOT NULL,
    inode INTEGER NOT NULL, blocks BLOB NOT NULL, PRIMARY KEY(session, position));
  CREATE TABLE removal(
    session INTEGER NOT NULL REFERENCES session ON DELETE CASCADE,
    planned INTEGER NOT NULL, folder TEXT NOT NULL, paths BLOB NOT NULL, stamps BLOB NOT NULL);
  CREATE INDEX removal_of_session ON removal(session);
  CREATE TABLE made(
    session INTEGER PRIMARY KEY REFERENCES session ON DELETE CASCADE, folder TEXT NOT NULL,
    paths BLOB NOT NULL, moved_from BLOB NOT NULL);
)";

std::int64_t formatOf(Database& database) {
  Statement version = database.prepare("PRAGMA user_version");
  version.next();
  return version.number(0);
}

}  // namespace

void makeRescueTables(Database& database) {
  Transaction transaction(database);
  const std::int64_t format = formatOf(database);
  if (format > kFormat) throw DatabaseError("it was made by a newer version of this program");
  if (format == 0) database.run(kWorkTables);
  if (format < kFormat) {
    database.run(kPlanTables);
    database.run("PRAGMA user_version = " + std::to_string(kFormat));
  }
  transaction.commit();
}

FileStamp keptStamp(const std::string& path) {
  FileStamp stamp = fileStamp(path);
  stamp.device = 0;
  return stamp;
}

// A size below 0 tells that there is no file.
Statement& bindStamp(Statement& statement, int place, const FileStamp& stamp) {
  return statement.number(place, stamp.exists ? static_cast<std::int64_t>(stamp.size) : -1)
      .number(place + 1, stamp.modified)
      .number(place + 2, static_cast<std::int64_t>(stamp.inode));
}

FileStamp stampFrom(const Statement& row, int column) {
  FileStamp stamp;
  stamp.exists = row.number(column) >= 0;
  stamp.size = stamp.exists ? static_cast<std::uint64_t>(row.number(column)) : 0;
  stamp.modified = row.number(column + 1);
  stamp.inode = static_cast<std::uint64_t>(row.number(column + 2));
  return stamp;
}

}  // namespace velra
