// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/OpenedDocument.h"

#include "app/ApplicationModule.h"
#include "base/Text.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "protocol/MainWindow.h"

namespace velra {

std::shared_ptr<AVDocument> openedDocument(const ApplicationModule& app) {
  return as<AVDocument>(app.gAVDoc);
}

bool documentIsOpen(const ApplicationModule& app) {
  return app.gAVDoc && app.gAVDoc->collObjects().Count() > 0;
}

bool needsDocument(ApplicationModule& app) {
  if (documentIsOpen(app)) return true;
  app.ui.messageBox(app.LoadResString(Message::NoDocumentOpen), BoxKind::Exclamation);
  return false;
}

std::string plainCaption(const ApplicationModule& app, Message command) {
  return replaceAll(replaceAll(app.LoadResString(command), "&", ""), "...", "");
}

void tellDone(const ApplicationModule& app, MainWindow& window, Message command,
              const std::string& outcome) {
  window.setStrStatusBarText(plainCaption(app, command) + ": " + outcome);
}

}  // namespace velra
