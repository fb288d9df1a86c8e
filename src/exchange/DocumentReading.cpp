// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DocumentReading.h"

#include <algorithm>
#include <variant>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "exchange/ContentWalk.h"
#include "exchange/DocumentVisit.h"
#include "exchange/ExchangeFailure.h"
#include "platform/files/Files.h"
#include "rescue/KeptWorkList.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "store/IOManager.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {

namespace {

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

}  // namespace

Content readContent(ApplicationModule& app, const std::string& path) {
  const std::string document = documentToVisit(app, path);
  refuseCutOffSave(document);
  useVocabulary(app);
  const auto io = std::make_shared<IOManager>(app);
  io->setBReadsOnly(true);
  const DocumentVisit visit(app, document, io);
  try {
    return contentOf(app, visit.document());
  } catch (const RunTimeError& error) {
    throw ExchangeFailure(document + ": " + error.description());
  }
}

}  // namespace velra
