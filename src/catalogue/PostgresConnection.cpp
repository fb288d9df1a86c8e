// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/PostgresConnection.h"

#include <libpq-fe.h>

#include <algorithm>

#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"

namespace velra {

namespace {

struct Clear {
  void operator()(PGresult* result) const { PQclear(result); }
};
using Result = std::unique_ptr<PGresult, Clear>;

bool isDone(const Result& result) {
  const ExecStatusType status = PQresultStatus(result.get());
  return status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK;
}

PostgresConnection::Answer answerOf(const PGresult* result) {
  PostgresConnection::Answer answer;
  for (int row = 0; row < PQntuples(result); ++row) {
    auto& values = answer.emplace_back();
    for (int column = 0; column < PQnfields(result); ++column) {
      if (PQgetisnull(result, row, column)) {
        values.emplace_back();
      } else {
        values.emplace_back(PQgetvalue(result, row, column));
      }
    }
  }
  return answer;
}

}  // namespace

void PostgresConnection::Close::operator()(pg_conn* connection) const {
  PQfinish(connection);
}

PostgresConnection::PostgresConnection(const std::string& address)
    : connection_(PQconnectdb(address.c_str())) {
  if (PQstatus(connection_.get()) != CONNECTION_OK) fail();
  // Texts are UTF-8, and what the server has to remark in good order is nobody's business.
  runAll("SET client_encoding = 'UTF8'; SET client_min_messages = warning");
}

void PostgresConnection::fail() const {
  throw ExchangeFailure("The PostgreSQL server: " + oneLine(PQerrorMessage(connection_.get())));
}

PostgresConnection::Answer PostgresConnection::run(const std::string& statement,
                                                   const std::vector<std::string>& values) {
  std::vector<const char*> texts;
  for (const std::string& value : values) texts.push_back(value.c_str());
  const Result result(PQexecParams(connection_.get(), statement.c_str(),
                                   static_cast<int>(texts.size()), nullptr, texts.data(), nullptr,
                                   nullptr, 0));
  if (!isDone(result)) fail();
  return answerOf(result.get());
}

void PostgresConnection::runAll(const std::string& statements) {
  const Result result(PQexec(connection_.get(), statements.c_str()));
  if (!isDone(result)) fail();
}

void PostgresConnection::copyInto(const std::string& tableAndColumns, const std::string& lines) {
  const std::string statement = "COPY " + tableAndColumns + " FROM STDIN";
  const Result begun(PQexec(connection_.get(), statement.c_str()));
  if (PQresultStatus(begun.get()) != PGRES_COPY_IN) fail();
  constexpr std::size_t kAtATime = 1'000'000;
  for (std::size_t at = 0; at < lines.size(); at += kAtATime) {
    const std::size_t size = std::min(kAtATime, lines.size() - at);
    if (PQputCopyData(connection_.get(), lines.data() + at, static_cast<int>(size)) != 1) fail();
  }
  if (PQputCopyEnd(connection_.get(), nullptr) != 1) fail();
  bool done = true;
  while (const Result result{PQgetResult(connection_.get())}) done = done && isDone(result);
  if (!done) fail();
}

PostgresTransaction::~PostgresTransaction() {
  if (!open_) return;
  try {
    connection_.runAll("ROLLBACK");
  } catch (const ExchangeFailure&) {
    open_ = false;  // a connection that is lost has been rolled back
  }
}

void PostgresTransaction::commit() {
  connection_.runAll("COMMIT");
  open_ = false;
}

}  // namespace velra
