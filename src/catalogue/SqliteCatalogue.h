// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "catalogue/Catalogue.h"
#include "platform/database/Database.h"

namespace velra {

/// A catalogue in a SQLite file, with its full text search FTS5.
class SqliteCatalogue : public Catalogue {
 public:
  explicit SqliteCatalogue(const std::string& path);

  std::string stampOf(const std::string& path) override;
  void replace(const CatalogueDocument& document) override;
  bool drop(const std::string& path) override;
  std::vector<CatalogueHit> find(const std::string& words, int most) override;

 private:
  void makeTables();
  void insert(std::int64_t document, std::size_t table, const std::vector<CatalogueRow>& rows);

  std::string path_;
  Database database_;
};

}  // namespace velra
