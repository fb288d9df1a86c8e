// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velra {

class ApplicationModule;
class Catalogue;

/// What came of documents.
struct CatalogueLoad {
  std::size_t loaded = 0;
  std::size_t unchanged = 0;
  std::size_t gone = 0;  // no file any more, and forgotten
  std::size_t failed = 0;
};

/// What tells one state of a document's files from another; "" when its own file is not there.
std::string documentStamp(const std::string& path);

/// Takes documents into a catalogue, those alone that have changed since last time; each is there
/// whole or as before. `tell` is called with a sentence for each that fails. Needs what
/// `readContent` needs. Raises ExchangeFailure when the database fails.
CatalogueLoad loadIntoCatalogue(ApplicationModule& app, Catalogue& catalogue,
                                const std::vector<std::string>& documents,
                                const std::function<void(const std::string&)>& tell);

}  // namespace velra
