// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/Catalogue.h"

#include "catalogue/PostgresCatalogue.h"
#include "catalogue/SqliteCatalogue.h"
#include "exchange/ExchangeFailure.h"
#include "platform/files/Files.h"

namespace velra {

namespace {

bool isServer(const std::string& database) {
  return database.starts_with("postgresql://") || database.starts_with("postgres://");
}

}  // namespace

std::unique_ptr<Catalogue> openCatalogue(const std::string& database) {
  if (isServer(database)) return std::make_unique<PostgresCatalogue>(database);
  return std::make_unique<SqliteCatalogue>(database);
}

std::unique_ptr<Catalogue> openForSearch(const std::string& database) {
  if (!isServer(database) && !bFileExists(database)) {
    throw ExchangeFailure("There is no catalogue " + database + ".");
  }
  return openCatalogue(database);
}

}  // namespace velra
