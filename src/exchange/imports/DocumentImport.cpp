// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/DocumentImport.h"

#include <memory>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "exchange/DocumentVisit.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ShotImport.h"
#include "objects/AVDocument.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueWriter.h"
#include "store/IOManager.h"

namespace velra {

namespace {

// Two programs that save the same document would undo one another's work.
void refuseOpenElsewhere(const ApplicationModule& app, const std::string& document) {
  if (!app.rescue) return;
  bool open = false;
  app.rescue->run([&](RescueStore& store) { open = isOpen(store, document); });
  if (open)
    throw ExchangeFailure(document + ": " + app.LoadResString(Message::DocumentOpenElsewhere));
}

ImportReport importShots(ApplicationModule& app, AVDocument& document,
                         const ImportOptions& options) {
  const ShotTask task = shotTask(document, options);
  const FoundShots found = findShots(task.movie, task.search, {}, {});
  if (!found.reason.empty()) throw ExchangeFailure(task.movie + ": " + found.reason);
  return takeProposal(app, document, kShotsImport, proposalOf(found.shots), options);
}

}  // namespace

ImportReport importIntoDocument(ApplicationModule& app, const std::string& document,
                                const ImportFormat& format, const std::string& path,
                                const ImportOptions& options) {
  const std::string absolute = documentToVisit(app, document);
  const std::string file = strAbsolutePath(path);
  refuseOpenElsewhere(app, absolute);
  try {
    const DocumentVisit visit(app, absolute, std::make_shared<IOManager>(app));
    ImportReport report = format.read ? importInto(app, visit.document(), format, file, options)
                                      : importShots(app, visit.document(), options);
    if (report.changed() && !visit.document().bSave()) {
      throw ExchangeFailure(absolute + " could not be saved, and is what it was.");
    }
    return report;
  } catch (const RunTimeError& error) {
    throw ExchangeFailure(absolute + ": " + error.description());
  }
}

}  // namespace velra
