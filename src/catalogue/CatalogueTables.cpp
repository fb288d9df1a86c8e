// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/CatalogueTables.h"

namespace velra {

const std::array<CatalogueTable, kCatalogueTables> kCatalogueTableList{{
    {"object",
     "document, object, class, identifier, title, parent, version, number, movie, picture",
     "object INTEGER NOT NULL, class TEXT NOT NULL, identifier TEXT NOT NULL, title TEXT NOT NULL,"
     " parent INTEGER, version INTEGER, number INTEGER NOT NULL, movie TEXT, picture TEXT,"
     " PRIMARY KEY(document, object)"},
    {"segment", "document, object, level, start_seconds, end_seconds, rate, start_code, end_code",
     "object INTEGER NOT NULL, level INTEGER NOT NULL, start_seconds DOUBLE PRECISION NOT NULL,"
     " end_seconds DOUBLE PRECISION NOT NULL, rate DOUBLE PRECISION, start_code TEXT NOT NULL,"
     " end_code TEXT NOT NULL, PRIMARY KEY(document, object)"},
    {"word", "document, object, number, start_seconds, end_seconds, text",
     "object INTEGER NOT NULL, number INTEGER NOT NULL, start_seconds DOUBLE PRECISION NOT NULL,"
     " end_seconds DOUBLE PRECISION NOT NULL, text TEXT NOT NULL,"
     " PRIMARY KEY(document, object, number)"},
    {"field", "document, object, name, type, position, language, text",
     "object INTEGER NOT NULL, name TEXT NOT NULL, type TEXT NOT NULL, position INTEGER NOT NULL,"
     " language TEXT NOT NULL, text TEXT NOT NULL,"
     " PRIMARY KEY(document, object, name, position, language)"},
    {"relation", "document, object, name, position, identifier, target",
     "object INTEGER NOT NULL, name TEXT NOT NULL, position INTEGER NOT NULL,"
     " identifier TEXT NOT NULL, target INTEGER, PRIMARY KEY(document, object, name, position)"},
    {"passage", "document, object, name, language, start_seconds, text",
     "object INTEGER NOT NULL, name TEXT NOT NULL, language TEXT NOT NULL,"
     " start_seconds DOUBLE PRECISION, text TEXT NOT NULL"},
}};

std::string catalogueDefinition(const std::string& key, const std::string& keyed) {
  std::string all = "CREATE TABLE document(id " + key +
                    ", path TEXT NOT NULL UNIQUE, stamp TEXT NOT NULL, title TEXT NOT NULL);";
  for (const CatalogueTable& table : kCatalogueTableList) {
    const bool counted = table.name == kCatalogueTableList.back().name;
    all += std::string("CREATE TABLE ") + table.name + "(" + (counted ? "id " + key + ", " : "") +
           "document INTEGER NOT NULL REFERENCES document(id) ON DELETE CASCADE, " +
           table.definition + ")" + (counted ? "" : keyed) + ";";
  }
  return all +
         "CREATE INDEX field_by_name ON field(name, text);"
         "CREATE INDEX segment_by_level ON segment(level);"
         "CREATE INDEX passage_of_document ON passage(document);";
}

}  // namespace velra
