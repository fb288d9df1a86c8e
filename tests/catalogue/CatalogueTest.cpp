// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "PostgresServer.h"
#include "base/Text.h"
#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueLoading.h"
#include "catalogue/PostgresConnection.h"
#include "exchange/ExchangeFailure.h"
#include "platform/database/Database.h"
#include "support/ExchangeSession.h"

namespace velra::test {
namespace {

using Texts = std::vector<std::string>;

// "loaded unchanged gone failed", and what was told.
std::string load(ExchangeSession& session, Catalogue& catalogue, const Texts& documents) {
  std::string told;
  const auto tell = [&told](const std::string& sentence) { told += "; " + sentence; };
  const CatalogueLoad came = loadIntoCatalogue(session.application.app, catalogue, documents, tell);
  std::string text;
  for (const std::size_t count : {came.loaded, came.unchanged, came.gone, came.failed}) {
    text += (text.empty() ? "" : " ") + std::to_string(count);
  }
  return text + told;
}

Texts found(Catalogue& catalogue, const std::string& words) {
  Texts lines;
  for (const CatalogueHit& hit : catalogue.find(words, 100)) {
    const std::string time = hit.start ? std::to_string(std::lround(*hit.start * 1000)) : "";
    lines.push_back(hit.className + " " + hit.title + " @" + time + " " + hit.field + ": " +
                    hit.text);
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

// A row of a table as one text that both databases make alike.
std::string rowsOf(const CatalogueTable& table) {
  std::string row = "SELECT ";
  const std::string columns = table.columns;
  for (std::size_t at = columns.find(", "); at != std::string::npos;) {
    const std::size_t end = columns.find(", ", at + 2);
    const std::string name = columns.substr(at + 2, end - at - 2);
    const bool real = name.ends_with("seconds") || name == "rate";

    row += "coalesce(" +
           (real ? "cast(cast(round(" + name + " * 1000) AS INTEGER) AS TEXT)"
                 : "cast(" + name + " AS TEXT)") +
           ", '-') || '|' || ";
    at = end;
  }
  return row + "'' FROM " + table.name;
}

Texts sqliteRows(const std::string& path, const std::string& query, int columns = 1) {
  Texts rows;
  Database database(path);
  Statement statement = database.prepare(query);
  while (statement.next()) {
    std::string& row = rows.emplace_back();
    for (int column = 0; column < columns; ++column) row += statement.text(column) + '|';
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

Texts serverRows(const std::string& address, const std::string& query) {
  Texts rows;
  for (const auto& answer : PostgresConnection(address).run(query)) {
    std::string& row = rows.emplace_back();
    for (const auto& value : answer) row += value.value_or("") + '|';
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

// Those that the documentation shows.
Texts documentedQueries() {
  Texts queries;
  bool inside = false;
  std::ifstream document(VELRA_SOURCE_DIR "/docs/exchange.md");
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("    SELECT")) queries.emplace_back();
    inside = (inside || line.starts_with("    SELECT")) && line.starts_with("    ");
    if (inside) queries.back() += line + '\n';
  }
  return queries;
}

void checkADay(ExchangeSession& session, const std::string& database) {
  const auto catalogue = openCatalogue(database);
  EXPECT_EQ(load(session, *catalogue, {session.document}), "1 0 0 0");
  const std::string film = "AVDocument Fish & \"Chips\" <1936>; a = b # c @ ";
  const struct {
    const char* words;
    std::string line;
  } cases[] = {
      {"brood", film + "ThematicKeywords: Brood"},
      {"dagelijks LEVEN", film + "Themes: Maatschappij en dagelijks leven"},
      {"דגים", film + "AlternativeTitles: דגים וצ׳יפס"},
      {"unabh*",
       "Transcript Whole Transcript @8496 Words: "
       "Unabhängigkeitserklärungsverhandlungsführerinnen"},
      {"quay women",
       "Transcript Whole Transcript @1719 Words: "
       "On the quay the women wait with baskets; nobody speaks."},
      {"rolls", "Video Second, \"the market\" @2520 Keywords: Bread; rolls"},
      {"הדגים", "Video שוק הדגים @0 Title: שוק הדגים"},
  };
  for (const auto& [words, line] : cases) EXPECT_EQ(found(*catalogue, words), Texts{line}) << words;

  const std::string other = session.folder / "b/film.xml";
  std::filesystem::copy(session.folder / "a", session.folder / "b",
                        std::filesystem::copy_options::recursive);
  const Texts both = {session.document, other};
  EXPECT_EQ(load(session, *catalogue, both), "1 1 0 0");
  const std::size_t hits = found(*catalogue, "the").size();
  EXPECT_GT(hits, 0U);
  EXPECT_EQ(load(session, *openCatalogue(database), both), "0 2 0 0");

  const std::string missing = session.folder / "c.xml";
  session.folder.write("d.xml", "no XML");
  EXPECT_EQ(load(session, *catalogue, {missing}).substr(0, 8), "0 0 0 1;");
  std::filesystem::last_write_time(other, std::filesystem::file_time_type::clock::now());
  EXPECT_EQ(load(session, *catalogue, both), "1 1 0 0");
  EXPECT_EQ(found(*catalogue, "the").size(), hits) << "what was changed is not there twice";
  std::filesystem::remove_all(session.folder / "b");
  EXPECT_EQ(load(session, *catalogue, both), "0 1 1 0");
  EXPECT_EQ(found(*catalogue, "the").size() * 2, hits);

  for (const char* odd : {"", "  ", "\"", "' OR", "a:b(", "\\", "*", "<&>", "AND NOT"}) {
    EXPECT_NO_THROW(catalogue->find(odd, 10)) << odd;
  }
}

TEST(Catalogue, LoadsWhatHasChangedAndForgetsWhatIsGone) {
  ExchangeSession session;
  checkADay(session, session.folder / "c.db");
}

TEST(Catalogue, AServerHoldsAndFindsTheSame) {
  const PostgresServer server;
  // ./test installs it; a build of the package alone need not have a server.
  if (!server.installed()) GTEST_SKIP() << "PostgreSQL is not installed";
  const std::string address = server.address();
  ASSERT_NE(address, "") << "the server could not be started";
  ExchangeSession session;
  checkADay(session, address);

  const std::string file = session.folder / "c.db";
  const auto local = openCatalogue(file);
  const Texts both = {session.document, VELRA_SOURCE_DIR "/data/sample/lighthouse.xml"};
  ASSERT_EQ(load(session, *local, both), "2 0 0 0");
  ASSERT_EQ(load(session, *openCatalogue(address), both), "1 1 0 0");
  for (const CatalogueTable& table : kCatalogueTableList) {
    const Texts rows = sqliteRows(file, rowsOf(table));
    EXPECT_FALSE(rows.empty()) << table.name;
    EXPECT_EQ(rows, serverRows(address, rowsOf(table))) << table.name;
  }
  const std::string said =
      "The gale|00:00:36:00|In November come gales. Waves as high as houses break over that rock, "
      "and for nine days no boat can land. Nobody comes, nobody leaves.|";
  const std::pair<int, std::string> shown[] = {
      {2, "Mare e costa|0.0|"}, {4, "Skarholm Light|The log|00:00:25:00|00:00:36:00|"}, {3, said}};
  const Texts queries = documentedQueries();
  ASSERT_EQ(queries.size(), std::size(shown));
  for (std::size_t i = 0; i < queries.size(); ++i) {
    const Texts rows = sqliteRows(file, queries[i], shown[i].first);
    EXPECT_EQ(std::count(rows.begin(), rows.end(), shown[i].second), 1) << queries[i];
    const std::string there = replaceAll(queries[i], "group_concat(word.text, ' ')",
                                         "string_agg(word.text, ' ' ORDER BY word.number)");
    EXPECT_EQ(rows, serverRows(address, there)) << queries[i];
  }
  const auto remote = openCatalogue(address);
  for (const char* words : {"the", "lantern", "li*", "lig* the"}) {
    EXPECT_EQ(found(*local, words), found(*remote, words)) << words;
  }
}

TEST(Catalogue, RefusesWhatIsNone) {
  const TemporaryFolder folder;
  const std::string foreign = folder / "foreign.db";
  Database(foreign).run("CREATE TABLE theirs(a)");
  const std::string text = folder.write("text.db", std::string(5000, 'x'));
  for (const std::string& database : {foreign, text, folder / "no/where.db",
                                      std::string("postgresql://velra@/x?host=/no/where")}) {
    EXPECT_THROW(openCatalogue(database), ExchangeFailure) << database;
  }
  EXPECT_THROW(openForSearch(folder / "none.db"), ExchangeFailure);
  EXPECT_FALSE(std::filesystem::exists(folder / "none.db"));
}

}  // namespace
}  // namespace velra::test
