// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/CatalogueLoading.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "catalogue/Catalogue.h"
#include "exchange/Content.h"
#include "exchange/DocumentReading.h"
#include "exchange/ExchangeFailure.h"
#include "platform/files/ContentPrint.h"
#include "platform/files/Files.h"
#include "store/DataFolder.h"

namespace velra {

namespace {

std::string lineOf(const std::string& path) {
  const FileStamp stamp = fileStamp(path);
  return path + ' ' + std::to_string(stamp.size) + ' ' + std::to_string(stamp.modified) + '\n';
}

// What is read of a document depends on the schema and the vocabulary too.
std::string stampWith(const std::string& path, const std::string& settings) {
  const std::string stamp = documentStamp(path);
  return stamp.empty() ? stamp : std::to_string(contentPrint(settings + stamp));
}

}  // namespace

std::string documentStamp(const std::string& path) {
  if (!bFileExists(path)) return {};
  std::string all = lineOf(path);
  const std::string folder = dataFolderOf(path);
  for (const std::string& name : colListFiles(folder + "*.*")) all += lineOf(folder + name);
  return std::to_string(contentPrint(all));
}

CatalogueLoad loadIntoCatalogue(ApplicationModule& app, Catalogue& catalogue,
                                const std::vector<std::string>& documents,
                                const std::function<void(const std::string&)>& tell) {
  CatalogueLoad load;
  const std::string settings = lineOf(app.strXSDPath()) + lineOf(app.strThematicKeywordsPath());
  for (const std::string& document : documents) {
    const std::string path = strAbsolutePath(document);
    const std::string stamp = stampWith(path, settings);
    if (stamp.empty() && catalogue.drop(path)) {
      ++load.gone;
      continue;
    }
    if (!stamp.empty() && catalogue.stampOf(path) == stamp) {
      ++load.unchanged;
      continue;
    }
    CatalogueDocument rows;
    try {
      rows = catalogueDocument(readContent(app, path), stamp);
    } catch (const ExchangeFailure& failure) {
      ++load.failed;
      tell(path + ": " + failure.what());
      continue;
    }
    catalogue.replace(rows);
    ++load.loaded;
  }
  return load;
}

}  // namespace velra
