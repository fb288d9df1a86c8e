// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

namespace velra {

class ApplicationModule;
class AVDocument;
class IOManager;

/// A document that is open for one exchange: the current folder is its folder meanwhile, and it is
/// closed at the end. Needs a factory in the application.
class DocumentVisit {
 public:
  /// Raises ExchangeFailure for a document that cannot be opened.
  DocumentVisit(ApplicationModule& app, const std::string& path,
                const std::shared_ptr<IOManager>& io);
  ~DocumentVisit();
  DocumentVisit(const DocumentVisit&) = delete;
  DocumentVisit& operator=(const DocumentVisit&) = delete;

  AVDocument& document() const { return *document_; }

 private:
  class FolderVisit;

  std::string openIt(const std::string& path, const std::shared_ptr<IOManager>& io);

  std::unique_ptr<FolderVisit> folder_;  // left last
  ApplicationModule& app_;
  std::shared_ptr<AVDocument> document_;
};

/// The absolute path of a document that may be opened. Raises ExchangeFailure for one that is not
/// there, and where the settings name no schema.
std::string documentToVisit(const ApplicationModule& app, const std::string& path);

}  // namespace velra
