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

std::string keepAtUntrappedError(ApplicationModule& app) {
  constexpr std::chrono::seconds kPatience{2};
  try {
    const auto io = app.gAVDoc ? app.gAVDoc->io() : nullptr;
    if (!io || !io->rescue() || app.gAVDoc->collObjects().changedObjects().empty()) return {};
    while (app.gAVDoc->keepUnsavedWork()) {
    }
    io->rescue()->endedByError();
    const bool kept = app.rescue->finish(kPatience) && app.rescue->failure().empty();
    return kept ? app.LoadResString(Message::UnsavedWorkIsKept) + "." : "";
  } catch (const std::exception&) {
    return {};  // the document may be in any state; what was kept before is there all the same
  }
}

}  // namespace velra
