// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct pg_conn;

namespace velra {

/// A connection to a PostgreSQL server. Every member raises ExchangeFailure with what the server
/// says.
class PostgresConnection {
 public:
  /// An address as "postgresql://user@host/database".
  explicit PostgresConnection(const std::string& address);

  /// The rows of an answer; nothing where the server has no value.
  using Answer = std::vector<std::vector<std::optional<std::string>>>;

  /// Does one statement with its places "$1", "$2"...
  Answer run(const std::string& statement, const std::vector<std::string>& values = {});
  /// Does statements that give no rows, one after the other.
  void runAll(const std::string& statements);
  /// Fills a table: `lines` in the text form of COPY.
  void copyInto(const std::string& tableAndColumns, const std::string& lines);

 private:
  struct Close {
    void operator()(pg_conn* connection) const;
  };
  [[noreturn]] void fail() const;

  std::unique_ptr<pg_conn, Close> connection_;
};

/// Work on a server that is done whole or not at all; undone at the end of its life unless it has
/// been committed.
class PostgresTransaction {
 public:
  explicit PostgresTransaction(PostgresConnection& connection) : connection_(connection) {
    connection_.runAll("BEGIN");
  }
  PostgresTransaction(const PostgresTransaction&) = delete;
  PostgresTransaction& operator=(const PostgresTransaction&) = delete;
  ~PostgresTransaction();

  void commit();

 private:
  PostgresConnection& connection_;
  bool open_ = true;
};

}  // namespace velra
