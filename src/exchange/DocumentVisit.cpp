// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DocumentVisit.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "exchange/ExchangeFailure.h"
#include "objects/AVDocument.h"
#include "objects/UnsavedPictures.h"
#include "platform/files/Files.h"
#include "store/IOManager.h"

namespace velra {

class DocumentVisit::FolderVisit {
 public:
  explicit FolderVisit(const std::string& folder) : before_(currentFolder()) {
    changeCurrentFolder(folder);
  }
  ~FolderVisit() { changeCurrentFolder(before_); }
  FolderVisit(const FolderVisit&) = delete;
  FolderVisit& operator=(const FolderVisit&) = delete;

 private:
  std::string before_;
};

DocumentVisit::DocumentVisit(ApplicationModule& app, const std::string& path,
                             const std::shared_ptr<IOManager>& io)
    : folder_(std::make_unique<FolderVisit>(folderOf(path))), app_(app) {
  document_ = std::make_shared<AVDocument>(app);
  const std::string message = openIt(path, io);
  if (message.empty()) return;
  dropUnsavedPictures(*document_, false);
  app_.gAVDoc.reset();
  throw ExchangeFailure(path + ": " + message);
}

// A document that failed to open stays set otherwise.
std::string DocumentVisit::openIt(const std::string& path, const std::shared_ptr<IOManager>& io) {
  try {
    return document_->strOpen(path, nullptr, io);
  } catch (const RunTimeError& error) {
    return error.description();
  }
}

DocumentVisit::~DocumentVisit() {
  dropUnsavedPictures(*document_, false);
  document_.reset();
  app_.gAVDoc.reset();
}

std::string documentToVisit(const ApplicationModule& app, const std::string& path) {
  std::string document = strAbsolutePath(path);
  if (!bFileExists(document)) throw ExchangeFailure("There is no document " + document + ".");
  if (app.strXSDPath().empty()) {
    throw ExchangeFailure("The settings name no schema, and without one a document has no fields.");
  }
  return document;
}

}  // namespace velra
