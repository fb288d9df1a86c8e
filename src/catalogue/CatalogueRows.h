// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "catalogue/CatalogueTables.h"

namespace velra {

struct Content;

/// One value of a row; nothing, a whole number, a number, or text in UTF-8.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string>;
using CatalogueRow = std::vector<Cell>;

/// All rows of a document but for the number that the database gives it, which is the first column
/// of each table.
struct CatalogueDocument {
  std::string path;
  std::string stamp;
  std::string title;
  std::array<std::vector<CatalogueRow>, kCatalogueTables>
      rows;  // in the order of `kCatalogueTableList`
};

/// The rows of what a document says. `stamp` tells one state of it from another.
CatalogueDocument catalogueDocument(const Content& content, const std::string& stamp);

}  // namespace velra
