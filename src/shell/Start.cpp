// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Start.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/UserInterface.h"
#include "shell/frmMain.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {

void LoadThematicKeywords(ApplicationModule& app) {
  app.objNaroThematicKeywords = std::make_shared<NaroThematicKeywords>();
  if (app.objNaroThematicKeywords->bSetFromXMLFile(app, app.strThematicKeywordsPath())) return;
  app.ui.messageBox(app.LoadResString(Message::VocabularyUnavailable));
  app.objNaroThematicKeywords.reset();
}

void Main(ApplicationModule& app, frmMain& mainForm, const std::string& commandLine,
          const StartSteps& steps) {
  app.gCommandLine = commandLine;
  LoadThematicKeywords(app);
  app.iLanguage = 0;
  steps.showMainWindow();
  steps.showSplash();
  if (app.gCommandLine.empty()) return;
  app.gCommandLine = strStripQuotes(app.gCommandLine);
  mainForm.OpenFile(app.gCommandLine);
}

std::string commandLineOf(int count, const char* const* arguments, const std::string& startFolder) {
  std::string line;
  for (int i = 0; i < count; ++i) {
    if (i > 0) line += ' ';
    line += arguments[i];
  }
  if (line.empty()) return line;
  // A path in quotes keeps them: they are taken off where all command lines are.
  const std::string path = strStripQuotes(line);
  const std::string quote = path == line ? "" : "\"";
  const bool relative = !path.empty() && path.front() != '/' && path.find('"') == std::string::npos;
  return relative ? quote + strAbsolutePath(path, startFolder) + quote : line;
}

}  // namespace velra
