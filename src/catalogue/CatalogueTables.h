// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

namespace velra {

/// A table of a catalogue, but for that of the documents: its first column is the document's
/// number. The definitions are understood by SQLite and PostgreSQL alike.
struct CatalogueTable {
  const char* name;
  const char* columns;     // their names, in the order of the rows' cells
  const char* definition;  // of all columns and keys behind that of the document
};

inline constexpr std::size_t kCatalogueTables = 6;
extern const std::array<CatalogueTable, kCatalogueTables> kCatalogueTableList;

/// The order of `kCatalogueTableList`.
enum class CatalogueTableId { Object, Segment, Word, Field, Relation, Passage };

/// The number of the tables' form. A catalogue of another one is made anew.
inline constexpr int kCatalogueForm = 1;

/// The statements that make the tables, in the database's own words: `key` is the type of a key
/// that counts by itself, `keyed` stands behind a table whose rows are stored by their key.
std::string catalogueDefinition(const std::string& key, const std::string& keyed);

}  // namespace velra
