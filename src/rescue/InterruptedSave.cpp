// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/InterruptedSave.h"

#include "rescue/CutOffSave.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"

namespace velra {

std::string finishInterruptedSaves(RescueStore& store, const std::string& document,
                                   const RescueTexts& texts) {
  std::string told;
  for (const KeptWork& work : interruptedSaves(store, "")) {
    const bool own = work.document == document;
    if (isRunning(work) || (!own && isOpen(store, work.document))) continue;
    CutOffSave save(store, work, texts);
    const std::string failure = save.finish();
    const std::string subject =
        texts.aSave + (own ? std::string() : texts.of + work.document) + texts.cutOff;
    std::string sentence;
    if (failure.empty()) {
      if (!save.outcome().empty()) sentence = subject + save.outcome() + ".";
    } else if (own || document.empty()) {
      sentence = subject + texts.notFinished + failure;
    }
    if (!sentence.empty()) told += (told.empty() ? "" : " ") + sentence;
  }
  return told;
}

}  // namespace velra
