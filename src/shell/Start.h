// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace velra {

class ApplicationModule;
class frmMain;

/// What the start asks of the windows, in the order of the calls.
struct StartSteps {
  std::function<void()> showMainWindow;
  std::function<void()> showSplash;
};

/// Reads the vocabulary; a failure is shown and leaves the program without one.
void LoadThematicKeywords(ApplicationModule& app);

/// The start of the program: vocabulary, windows, and the document of the command line. The main
/// window has been made before.
void Main(ApplicationModule& app, frmMain& mainForm, const std::string& commandLine,
          const StartSteps& steps);

/// The arguments as one command line, with a relative path resolved against the folder that the
/// program was started in, since opening a document changes the current folder.
std::string commandLineOf(int count, const char* const* arguments, const std::string& startFolder);

}  // namespace velra
