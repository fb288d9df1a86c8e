// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/database/Database.h"

#include <sqlite3.h>

#include <utility>

namespace velra {

namespace {

// The error that the database has kept of its last call.
[[noreturn]] void failWith(sqlite3* database, int result) {
  const std::string reason = database ? sqlite3_errmsg(database) : sqlite3_errstr(result);
  const int kind = result & 0xFF;
  if (kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB) throw DamagedDatabase(reason);
  throw DatabaseError(reason);
}

}  // namespace

void Database::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

Database::Database(const std::string& path, int patience) {
  sqlite3* opened = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  const int result = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
  database_.reset(opened);
  if (result != SQLITE_OK) failWith(opened, result);
  sqlite3_busy_timeout(opened, patience);
  run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON;");
}

void Database::run(const std::string& statements) {
  const int result = sqlite3_exec(database_.get(), statements.c_str(), nullptr, nullptr, nullptr);
  if (result != SQLITE_OK) failWith(database_.get(), result);
}

Statement Database::prepare(const std::string& statement) {
  if (auto known = idle_.extract(statement)) return Statement(*this, std::move(known.mapped()));
  sqlite3_stmt* prepared = nullptr;
  const int length = static_cast<int>(statement.size());
  const int result = sqlite3_prepare_v3(database_.get(), statement.data(), length,
                                        SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
  if (result != SQLITE_OK) failWith(database_.get(), result);
  return Statement(*this, Prepared(prepared));
}

std::int64_t Database::lastRow() const {
  return sqlite3_last_insert_rowid(database_.get());
}

void Database::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

// Two of the same text may be in use at once; one of them is enough to keep.
void Statement::GiveBack::operator()(sqlite3_stmt* statement) const {
  Database::Prepared prepared(statement);
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
  database->idle_.insert_or_assign(sqlite3_sql(statement), std::move(prepared));
}

void Statement::check(int result) const {
  if (result != SQLITE_OK) failWith(sqlite3_db_handle(statement_.get()), result);
}

Statement& Statement::text(int place, std::string_view text) {
  check(sqlite3_bind_text64(statement_.get(), place, text.data() ? text.data() : "", text.size(),
                            SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

Statement& Statement::bytes(int place, std::string_view bytes) {
  check(sqlite3_bind_blob64(statement_.get(), place, bytes.data() ? bytes.data() : "", bytes.size(),
                            SQLITE_TRANSIENT));
  return *this;
}

Statement& Statement::number(int place, std::int64_t number) {
  check(sqlite3_bind_int64(statement_.get(), place, number));
  return *this;
}

Statement& Statement::real(int place, double number) {
  check(sqlite3_bind_double(statement_.get(), place, number));
  return *this;
}

Statement& Statement::null(int place) {
  check(sqlite3_bind_null(statement_.get(), place));
  return *this;
}

bool Statement::next() {
  const int result = sqlite3_step(statement_.get());
  if (result == SQLITE_ROW) return true;
  // A statement keeps its failure until it is reset, which tells it once more.
  check(sqlite3_reset(statement_.get()));
  return false;
}

void Statement::run() {
  while (next()) {
  }
}

std::string Statement::text(int column) const {
  const void* bytes = sqlite3_column_blob(statement_.get(), column);
  const int size = sqlite3_column_bytes(statement_.get(), column);
  return bytes ? std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(size))
               : std::string();
}

std::int64_t Statement::number(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

double Statement::real(int column) const {
  return sqlite3_column_double(statement_.get(), column);
}

bool Statement::isNull(int column) const {
  return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

Transaction::Transaction(Database& database) : database_(database) {
  // Taken at once: one that only asked first could be refused in its middle by another writer.
  database_.prepare("BEGIN IMMEDIATE").run();
}

Transaction::~Transaction() {
  if (!open_) return;
  try {
    database_.prepare("ROLLBACK").run();
  } catch (const DatabaseError&) {
    // A failure such as a full disk has rolled it back already.
    open_ = false;
  }
}

void Transaction::commit() {
  database_.prepare("COMMIT").run();
  open_ = false;
}

}  // namespace velra
