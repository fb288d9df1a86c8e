// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/DocumentClosing.h"

#include "app/ApplicationModule.h"
#include "objects/UnsavedPictures.h"
#include "platform/UserInterface.h"
#include "protocol/LongWork.h"
#include "protocol/MainWindow.h"
#include "protocol/OpenDocument.h"
#include "shell/MainTrees.h"
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
  const bool asks = !bNoPrompt && !app_.gAVDoc->collObjects().changedObjects().empty();
  if (asks && !saveQuestionAnswered()) return false;
  trees_.clear();
  trees_.ResetListImageExpression();
  releaseDocument();
  return true;
}

void DocumentClosing::releaseDocument() {
  trees_.clear();
  if (app_.gAVDoc) {
    // In a large document each of these takes a while in which nothing is painted.
    const LongWork work(app_.gMainForm, 2);
    while (app_.gAVDoc->keepUnsavedWork()) {
    }
    app_.gMainForm->workSteps();
    dropUnsavedPictures(*app_.gAVDoc, true);
    app_.gMainForm->workSteps();
  }
  app_.gAVDoc.reset();
}

}  // namespace velra
