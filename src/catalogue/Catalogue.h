// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/CatalogueRows.h"

namespace velra {

/// A place at which the words that were sought stand.
struct CatalogueHit {
  std::string document;  // the path of its file
  std::string className;
  std::string title;            // of the object
  std::optional<double> start;  // of the object, or of the words, in seconds of the movie
  double rate = 0;              // pictures per second; 0 when it is not known
  std::string field;            // "Title", the name of the field, or "Words"
  std::string text;
};

/// Many documents in one database, to be searched and counted. Every member raises ExchangeFailure
/// with a sentence that names the database.
class Catalogue {
 public:
  virtual ~Catalogue() = default;

  /// What `replace` was told of a document; "" for one that is not there.
  virtual std::string stampOf(const std::string& path) = 0;

  /// Takes the rows of a document in place of those that are there, all of them or none.
  virtual void replace(const CatalogueDocument& document) = 0;

  /// Forgets a document; false when it was not there.
  virtual bool drop(const std::string& path) = 0;

  /// The texts that hold all of the words, the best first. A word that ends in "*" stands for all
  /// that begin like it.
  virtual std::vector<CatalogueHit> find(const std::string& words, int most) = 0;
};

/// Opens the database and makes it when it is missing: a SQLite file, or the PostgreSQL database of
/// an address that begins with "postgresql://".
std::unique_ptr<Catalogue> openCatalogue(const std::string& database);

/// The same for a database that has to be there.
std::unique_ptr<Catalogue> openForSearch(const std::string& database);

}  // namespace velra
