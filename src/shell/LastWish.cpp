// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/LastWish.h"

#include <chrono>
#include <exception>

#include "app/ApplicationModule.h"
#include "protocol/OpenDocument.h"
#include "rescue/DocumentRescue.h"
#include "rescue/RescueWriter.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr std::chrono::seconds kPatience{2};

// Hands what has not been kept yet to the store's thread; false when there is nothing unsaved.
bool handOver(ApplicationModule& app) {
  const auto io = app.gAVDoc ? app.gAVDoc->io() : nullptr;
  if (!io || !io->rescue() || app.gAVDoc->collObjects().changedObjects().empty()) return false;
  while (app.gAVDoc->keepUnsavedWork()) {
  }
  return true;
}

}  // namespace

std::string keepAtUntrappedError(ApplicationModule& app) {
  try {
    if (!handOver(app)) return {};
    app.gAVDoc->io()->rescue()->endedByError();
    const bool kept = app.rescue->finish(kPatience) && app.rescue->failure().empty();
    return kept ? app.LoadResString(Message::UnsavedWorkIsKept) + "." : "";
  } catch (const std::exception&) {
    return {};  // the document may be in any state; what was kept before is there all the same
  }
}

void keepAtDisplayLoss(ApplicationModule& app) {
  try {
    handOver(app);
  } catch (const std::exception&) {
    // as above; what is on its way already is waited for
  }
  if (app.rescue) app.rescue->finish(kPatience);
}

}  // namespace velra
