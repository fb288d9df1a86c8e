// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/DocumentClosing.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/UserInterface.h"
#include "protocol/OpenDocument.h"
#include "rescue/DocumentRescue.h"
#include "shell/MainTrees.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

bool DocumentClosing::saveQuestionAnswered() {
  const auto answer = app_.ui.askYesNoCancel(app_.LoadResString(Message::SaveModifications) + " " +
                                             app_.gAVDoc->strTitle() + "?");
  if (answer == Answer::Yes) {
    const auto busy = app_.ui.showBusy();
    app_.gAVDoc->bSave();
  }
  return answer != Answer::Cancel;
}

bool DocumentClosing::CloseDocument(bool bNoPrompt) {
  const bool changed = !app_.gAVDoc->collObjects().changedObjects().empty();
  if (changed && !bNoPrompt && !saveQuestionAnswered()) return false;
  releaseDocument();
  trees_.ResetListImageExpression();
  return true;
}

void DocumentClosing::releaseDocument() {
  trees_.clear();
  if (app_.gAVDoc) {
    while (app_.gAVDoc->keepUnsavedWork()) {
    }
    MarkUnsavedMediaObjects();
  }
  app_.gAVDoc.reset();
}

// Pictures that no saved object points at go with the document.
void DocumentClosing::MarkUnsavedMediaObjects() {
  const auto isPicture = [](const RegisteredRef& object) {
    return object->kind() == ObjectKind::MediaObject;
  };
  const RegisteredList changed = app_.gAVDoc->collObjects().changedObjects();
  const bool workIsKept = !std::all_of(changed.begin(), changed.end(), isPicture);
  for (const RegisteredRef& object : changed) {
    if (!isPicture(object)) continue;
    const auto io = app_.gAVDoc->io();
    if (workIsKept && io->rescue()) io->rescue()->keepPicture(strAbsolutePath(object->strGUID()));
    io->RemoveGUID(object->strGUID());
  }
}

}  // namespace velra
