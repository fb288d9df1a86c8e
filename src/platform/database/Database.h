// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace velra {

/// What the database library could not do, in its own words. It is caught by whoever owns the
/// database: a program whose database fails goes on without it.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The file is no database, or a damaged one.
class DamagedDatabase : public DatabaseError {
 public:
  using DatabaseError::DatabaseError;
};

class Statement;

/// An open SQLite database, used by one thread at a time. Every member raises DatabaseError.
class Database {
 public:
  /// Opens the file and makes it when it is missing. What is committed has reached the disk; other
  /// programs may use the file at the same time, and are waited for up to `patience` milliseconds.
  explicit Database(const std::string& path, int patience = 5000);

  /// Runs statements that give no rows, one after the other.
  void run(const std::string& statements);

  /// A statement that is prepared often is parsed once.
  Statement prepare(const std::string& statement);

  /// The number that the last inserted row has got.
  std::int64_t lastRow() const;

 private:
  friend class Statement;
  struct Close {
    void operator()(sqlite3* database) const;
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

  std::unique_ptr<sqlite3, Close> database_;
  std::map<std::string, Prepared> idle_;  // those that nobody uses now
};

/// One statement with its places "?1", "?2"..., which count from 1; columns count from 0. It must
/// not outlive its database. Every member raises DatabaseError.
class Statement {
 public:
  /// The bytes of a text, of any encoding; they are copied.
  Statement& text(int place, std::string_view text);
  Statement& bytes(int place, std::string_view bytes);
  Statement& number(int place, std::int64_t number);
  Statement& real(int place, double number);
  /// No value.
  Statement& null(int place);

  /// Goes to the next row; false after the last one, and the statement is ready for other values.
  bool next();
  /// Does a statement whose rows nobody wants.
  void run();

  std::string text(int column) const;
  std::int64_t number(int column) const;
  double real(int column) const;
  bool isNull(int column) const;

 private:
  friend class Database;
  struct GiveBack {
    Database* database;
    void operator()(sqlite3_stmt* statement) const;
  };
  explicit Statement(Database& database, Database::Prepared prepared)
      : statement_(prepared.release(), {&database}) {}
  void check(int result) const;

  std::unique_ptr<sqlite3_stmt, GiveBack> statement_;
};

/// A stretch of work that is done whole or not at all. It is undone at the end of its life unless
/// it has been committed.
class Transaction {
 public:
  explicit Transaction(Database& database);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  void commit();

 private:
  Database& database_;
  bool open_ = true;
};

}  // namespace velra
