// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RecoverCommands.h"

#include <memory>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "protocol/MainWindow.h"
#include "rescue/DocumentRescue.h"
#include "rescue/IndependentCopy.h"
#include "shell/DocumentClosing.h"
#include "shell/OpenCommands.h"
#include "shell/OpenedDocument.h"
#include "shell/RecoverDialog.h"
#include "store/DataFolder.h"

namespace velra {

void RecoverCommands::mnuFileRecover() {
  if (!presenter_ || !app_.rescue) return;
  const std::string open =
      documentIsOpen(app_) ? strAbsolutePath(app_.gAVDoc->strGUID()) : std::string();
  const std::string recovered = RecoverDialog(app_, open).Show(*presenter_, window_);
  if (recovered.empty()) return;
  opening_.OpenFile(recovered);
  tellDone(app_, window_, Message::RecoverWork, recovered);
}

void RecoverCommands::mnuFileIndependent() {
  const auto document = openedDocument(app_);
  if (!document || document->copiedFolder().other.empty()) return;
  const std::string path = strAbsolutePath(document->strGUID());
  if (!app_.ui.askYesNo(app_.LoadResString(Message::AskIndependent) + dataFolderOf(path))) return;
  SavePlan plan;
  std::string failure;
  app_.ui.workAside(app_.LoadResString(Message::MakingIndependent),
                    [&] { failure = planIndependentCopy(path, plan); });
  if (!failure.empty()) return app_.ui.messageBox(failure, BoxKind::Exclamation);
  closing_.CloseDocument(true);
  const bool written = writeKeptWhenCutOff(path, plan);
  opening_.OpenFile(path);
  if (written) tellDone(app_, window_, Message::MakeIndependent, path);
}

// All files are the new ones or all are the old ones, as in a save.
bool RecoverCommands::writeKeptWhenCutOff(const std::string& document, const SavePlan& plan) {
  std::unique_ptr<DocumentRescue> rescue;
  if (app_.rescue) rescue = std::make_unique<DocumentRescue>(*app_.rescue, document);
  std::string failure;
  app_.ui.workAside(app_.LoadResString(Message::MakingIndependent), [&] {
    if (rescue) rescue->plan(plan);
    failure = writeIndependentCopy(plan);
  });
  if (!failure.empty()) app_.ui.messageBox(failure, BoxKind::Exclamation);
  if (rescue && failure.empty()) rescue->finishSave();
  if (rescue && !failure.empty()) rescue->abandonSave();
  return failure.empty();
}

}  // namespace velra
