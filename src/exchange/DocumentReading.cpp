// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DocumentReading.h"

#include <algorithm>
#include <variant>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "exchange/ContentWalk.h"
#include "exchange/ExchangeFailure.h"
#include "objects/AVDocument.h"
#include "platform/files/Files.h"
#include "rescue/KeptWorkList.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "store/IOManager.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {

namespace {

class FolderVisit {
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

class OpenedForReading {
 public:
  explicit OpenedForReading(ApplicationModule& app) : app_(app) {}
  ~OpenedForReading() { app_.gAVDoc.reset(); }
  OpenedForReading(const OpenedForReading&) = delete;
  OpenedForReading& operator=(const OpenedForReading&) = delete;

  /// A message, or "".
  std::string open(const std::string& path, const std::shared_ptr<IOManager>& io) {
    document_ = std::make_shared<AVDocument>(app_);
    return document_->strOpen(path, nullptr, io);
  }
  const AVDocument& document() const { return *document_; }

 private:
  ApplicationModule& app_;
  std::shared_ptr<AVDocument> document_;
};

// Half of the files are old then and half new.
void refuseCutOffSave(const std::string& document) {
  if (!bFileExists(RescueStore::defaultPath())) return;
  bool cutOff = false;
  try {
    RescueStore store(RescueStore::defaultPath());
    const auto saves = interruptedSaves(store, document);
    cutOff = std::any_of(saves.begin(), saves.end(), [&](const KeptWork& save) {
      const auto open = store.plans().open(save.session);
      const auto* plan = std::get_if<SavePlan>(&open);
      return !mayBeRunning(save.process) && plan && !plan->files.empty();
    });
  } catch (const DatabaseError&) {
    return;  // a store that cannot be read tells of nothing, and the program opens documents too
  }
  if (cutOff) {
    throw ExchangeFailure("A save of " + document +
                          " was cut off. Open the document in velra once, which finishes it.");
  }
}

// Translations are worth having and no reason to fail: the reader itself tells what is wrong.
void useVocabulary(ApplicationModule& app) {
  const std::string path = app.strThematicKeywordsPath();
  if (app.objNaroThematicKeywords || !bFileExists(path)) return;
  app.objNaroThematicKeywords = std::make_shared<NaroThematicKeywords>();
  app.objNaroThematicKeywords->bSetFromXMLFile(app, path);
}

Content read(ApplicationModule& app, const std::string& path) {
  const FolderVisit visit(folderOf(path));
  OpenedForReading opened(app);
  const auto io = std::make_shared<IOManager>(app);
  io->setBReadsOnly(true);
  const std::string message = opened.open(path, io);
  if (!message.empty()) throw ExchangeFailure(path + ": " + message);
  return contentOf(app, opened.document());
}

}  // namespace

Content readContent(ApplicationModule& app, const std::string& path) {
  const std::string document = strAbsolutePath(path);
  if (!bFileExists(document)) throw ExchangeFailure("There is no document " + document + ".");
  if (app.strXSDPath().empty()) {
    throw ExchangeFailure("The settings name no schema, and without one a document has no fields.");
  }
  refuseCutOffSave(document);
  useVocabulary(app);
  try {
    return read(app, document);
  } catch (const RunTimeError& error) {
    throw ExchangeFailure(document + ": " + error.description());
  }
}

}  // namespace velra
