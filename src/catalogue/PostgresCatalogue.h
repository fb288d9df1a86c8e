// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "catalogue/Catalogue.h"
#include "catalogue/PostgresConnection.h"

namespace velra {

/// A catalogue in a PostgreSQL database, searched by the server's own index. Its tables stand in
/// the schema that the connection's search path names first.
class PostgresCatalogue : public Catalogue {
 public:
  explicit PostgresCatalogue(const std::string& address);

  std::string stampOf(const std::string& path) override;
  void replace(const CatalogueDocument& document) override;
  bool drop(const std::string& path) override;
  std::vector<CatalogueHit> find(const std::string& words, int most) override;

 private:
  void makeTables();

  PostgresConnection connection_;
};

}  // namespace velra
