// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/SqliteCatalogue.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "catalogue/SearchWords.h"
#include "exchange/ExchangeFailure.h"

namespace velra {

namespace {

// The index holds no texts of its own, and follows the table by triggers.
constexpr const char* kTextIndex = R"(
  CREATE VIRTUAL TABLE passage_text USING fts5(
    text, content='passage', content_rowid='id', tokenize='unicode61 remove_diacritics 2');
  CREATE TRIGGER passage_comes AFTER INSERT ON passage BEGIN
    INSERT INTO passage_text(rowid, text) VALUES(new.id, new.text);
  END;
  CREATE TRIGGER passage_goes AFTER DELETE ON passage BEGIN
    INSERT INTO passage_text(passage_text, rowid, text) VALUES('delete', old.id, old.text);
  END;
)";

constexpr const char* kFind = R"(
  SELECT document.path, object.class, object.title, passage.start_seconds, segment.rate,
         passage.name, passage.text
  FROM passage_text
  JOIN passage ON passage.id = passage_text.rowid
  JOIN document ON document.id = passage.document
  JOIN object ON object.document = passage.document AND object.object = passage.object
  LEFT JOIN segment ON segment.document = passage.document AND segment.object = passage.object
  WHERE passage_text MATCH ?1 ORDER BY passage_text.rank, passage.id LIMIT ?2)";

// What the library says, with the name of the file.
template <class Work>
auto inDatabase(const std::string& path, Work work) {
  try {
    return work();
  } catch (const DatabaseError& error) {
    throw ExchangeFailure(path + ": " + error.what());
  }
}

Database opened(const std::string& path) {
  return inDatabase(path, [&] { return Database(path); });
}

void bind(Statement& statement, int place, const Cell& cell) {
  if (const auto* number = std::get_if<std::int64_t>(&cell)) statement.number(place, *number);
  if (const auto* real = std::get_if<double>(&cell)) statement.real(place, *real);
  if (const auto* text = std::get_if<std::string>(&cell)) statement.text(place, *text);
  if (std::holds_alternative<std::monostate>(cell)) statement.null(place);
}

std::string insertion(const CatalogueTable& table) {
  const std::string columns = table.columns;
  std::string places = "?1";
  const auto count = std::count(columns.begin(), columns.end(), ',') + 1;
  for (auto place = 2; place <= count; ++place) places += ", ?" + std::to_string(place);
  return std::string("INSERT INTO ") + table.name + "(" + columns + ") VALUES(" + places + ")";
}

// Each word in quotes, so that none is taken for a sign of the language of searches.
std::string matchFor(const std::string& words) {
  std::string match;
  for (const SearchWord& word : searchWords(words)) {
    match += "\"" + replaceAll(word.text, "\"", "\"\"") + (word.begins ? "\"* " : "\" ");
  }
  return match;
}

}  // namespace

SqliteCatalogue::SqliteCatalogue(const std::string& path) : path_(path), database_(opened(path)) {
  inDatabase(path_, [this] {
    // What a power cut takes of it, the next load brings back; it must not wait for each document.
    database_.run("PRAGMA synchronous = NORMAL; PRAGMA cache_size = -64000");
    makeTables();
  });
}

void SqliteCatalogue::makeTables() {
  Transaction transaction(database_);
  Statement form = database_.prepare("PRAGMA user_version");
  form.next();
  const std::int64_t found = form.number(0);
  if (found == kCatalogueForm) return;
  Statement tables = database_.prepare("SELECT count(*) FROM sqlite_master");
  tables.next();
  if (found != 0 || tables.number(0) != 0) {
    throw ExchangeFailure(path_ + " is no catalogue of this version of velra.");
  }
  database_.run(catalogueDefinition("INTEGER PRIMARY KEY", " WITHOUT ROWID"));
  database_.run(kTextIndex);
  database_.run("PRAGMA user_version = " + std::to_string(kCatalogueForm));
  transaction.commit();
}

std::string SqliteCatalogue::stampOf(const std::string& path) {
  return inDatabase(path_, [&] {
    Statement row = database_.prepare("SELECT stamp FROM document WHERE path = ?1");
    row.text(1, path);
    return row.next() ? row.text(0) : std::string();
  });
}

void SqliteCatalogue::insert(std::int64_t document, std::size_t table,
                             const std::vector<CatalogueRow>& rows) {
  Statement statement = database_.prepare(insertion(kCatalogueTableList[table]));
  for (const CatalogueRow& row : rows) {
    statement.number(1, document);
    int place = 2;
    for (const Cell& cell : row) bind(statement, place++, cell);
    statement.run();
  }
}

void SqliteCatalogue::replace(const CatalogueDocument& document) {
  inDatabase(path_, [&] {
    Transaction transaction(database_);
    database_.prepare("DELETE FROM document WHERE path = ?1").text(1, document.path).run();
    database_.prepare("INSERT INTO document(path, stamp, title) VALUES(?1, ?2, ?3)")
        .text(1, document.path)
        .text(2, document.stamp)
        .text(3, document.title)
        .run();
    const std::int64_t number = database_.lastRow();
    for (std::size_t table = 0; table < kCatalogueTables; ++table) {
      insert(number, table, document.rows[table]);
    }
    transaction.commit();
  });
}

bool SqliteCatalogue::drop(const std::string& path) {
  const bool there = !stampOf(path).empty();
  inDatabase(path_, [&] {
    database_.prepare("DELETE FROM document WHERE path = ?1").text(1, path).run();
  });
  return there;
}

std::vector<CatalogueHit> SqliteCatalogue::find(const std::string& words, int most) {
  std::vector<CatalogueHit> hits;
  const std::string match = matchFor(words);
  if (match.empty()) return hits;
  inDatabase(path_, [&] {
    Statement row = database_.prepare(kFind);
    row.text(1, match).number(2, most);
    while (row.next()) {
      CatalogueHit hit{row.text(0), row.text(1), row.text(2), {},
                       row.real(4), row.text(5), row.text(6)};
      if (!row.isNull(3)) hit.start = row.real(3);
      hits.push_back(std::move(hit));
    }
  });
  return hits;
}

}  // namespace velra
