// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/PostgresCatalogue.h"

#include <array>
#include <charconv>
#include <utility>

#include "base/Text.h"
#include "catalogue/SearchWords.h"
#include "exchange/ExchangeFailure.h"

namespace velra {

namespace {

// "simple" knows no language, as the texts are of five.
constexpr const char* kServerIndex =
    "ALTER TABLE passage ADD COLUMN words tsvector"
    " GENERATED ALWAYS AS (to_tsvector('simple', text)) STORED;"
    "CREATE INDEX passage_words ON passage USING gin(words);"
    "CREATE TABLE catalogue_form(form INTEGER NOT NULL);";

constexpr const char* kServerFind = R"(
  SELECT document.path, object.class, object.title, passage.start_seconds, segment.rate,
         passage.name, passage.text
  FROM to_tsquery('simple', $1) AS sought
  JOIN passage ON passage.words @@ sought
  JOIN document ON document.id = passage.document
  JOIN object ON object.document = passage.document AND object.object = passage.object
  LEFT JOIN segment ON segment.document = passage.document AND segment.object = passage.object
  ORDER BY ts_rank(passage.words, sought) DESC, passage.id LIMIT $2::integer)";

std::string numberOf(double number) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  return {text.data(), end};
}

// A value in the text form of COPY.
std::string copied(const Cell& cell) {
  if (const auto* number = std::get_if<std::int64_t>(&cell)) return std::to_string(*number);
  if (const auto* real = std::get_if<double>(&cell)) return numberOf(*real);
  const auto* text = std::get_if<std::string>(&cell);
  if (!text) return "\\N";
  std::string escaped;
  for (const char c : *text) {
    if (c == '\\') escaped += "\\\\";
    if (c == '\t') escaped += "\\t";
    if (c == '\n') escaped += "\\n";
    if (c == '\r') escaped += "\\r";
    if (c != '\\' && c != '\t' && c != '\n' && c != '\r') escaped += c;
  }
  return escaped;
}

std::string copyLines(const std::string& document, const std::vector<CatalogueRow>& rows) {
  std::string lines;
  for (const CatalogueRow& row : rows) {
    lines += document;
    for (const Cell& cell : row) lines += '\t' + copied(cell);
    lines += '\n';
  }
  return lines;
}

// Each word in quotes, so that none is taken for a sign of the language of searches.
std::string queryFor(const std::string& words) {
  std::string query;
  for (const SearchWord& word : searchWords(words)) {
    const std::string quoted = replaceAll(replaceAll(word.text, "\\", "\\\\"), "'", "''");
    query += (query.empty() ? "'" : " & '") + quoted + (word.begins ? "':*" : "'");
  }
  return query;
}

double realOf(const std::optional<std::string>& text) {
  return text ? toNumber(*text).value_or(0) : 0;
}

}  // namespace

PostgresCatalogue::PostgresCatalogue(const std::string& address) : connection_(address) {
  makeTables();
}

void PostgresCatalogue::makeTables() {
  PostgresTransaction transaction(connection_);
  // Two loads that begin at once must not both make the tables.
  connection_.run("SELECT pg_advisory_xact_lock(hashtext('velra catalogue'))");
  const auto known = connection_.run("SELECT to_regclass('catalogue_form')");
  if (known[0][0]) {
    const auto form = connection_.run("SELECT form FROM catalogue_form");
    if (form.size() == 1 && form[0][0] == std::to_string(kCatalogueForm)) return;
    throw ExchangeFailure("The PostgreSQL server: the catalogue is of another version of velra.");
  }
  connection_.runAll(catalogueDefinition("BIGSERIAL PRIMARY KEY", ""));
  connection_.runAll(kServerIndex);
  connection_.run("INSERT INTO catalogue_form VALUES($1::integer)",
                  {std::to_string(kCatalogueForm)});
  transaction.commit();
}

std::string PostgresCatalogue::stampOf(const std::string& path) {
  const auto rows = connection_.run("SELECT stamp FROM document WHERE path = $1", {path});
  return rows.empty() ? std::string() : rows[0][0].value_or("");
}

void PostgresCatalogue::replace(const CatalogueDocument& document) {
  PostgresTransaction transaction(connection_);
  connection_.run("DELETE FROM document WHERE path = $1", {document.path});
  const auto added =
      connection_.run("INSERT INTO document(path, stamp, title) VALUES($1, $2, $3) RETURNING id",
                      {document.path, document.stamp, document.title});
  const std::string number = added[0][0].value_or("");
  for (std::size_t table = 0; table < kCatalogueTables; ++table) {
    const CatalogueTable& target = kCatalogueTableList[table];
    connection_.copyInto(std::string(target.name) + "(" + target.columns + ")",
                         copyLines(number, document.rows[table]));
  }
  transaction.commit();
}

bool PostgresCatalogue::drop(const std::string& path) {
  return !connection_.run("DELETE FROM document WHERE path = $1 RETURNING id", {path}).empty();
}

std::vector<CatalogueHit> PostgresCatalogue::find(const std::string& words, int most) {
  std::vector<CatalogueHit> hits;
  const std::string query = queryFor(words);
  if (query.empty()) return hits;
  for (const auto& row : connection_.run(kServerFind, {query, std::to_string(most)})) {
    CatalogueHit hit{*row[0], *row[1], *row[2], {}, realOf(row[4]), *row[5], *row[6]};
    if (row[3]) hit.start = realOf(row[3]);
    hits.push_back(std::move(hit));
  }
  return hits;
}

}  // namespace velra
