// SPDX-License-Identifier: GPL-3.0-or-later
#include <malloc.h>

#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/movie/MediaGraph.h"
#include "platform/movie/MovieLibrary.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "shell/Factory.h"
#include "shell/LastWish.h"
#include "shell/Start.h"
#include "shell/TerminalAnswer.h"
#include "shell/VideoForm.h"
#include "shell/frmMain.h"
#include "widgets/GuardedApplication.h"
#include "widgets/QtUserInterface.h"
#include "widgets/SignalQuit.h"
#include "widgets/Texts.h"
#include "widgets/forms/QtFormPresenter.h"
#include "widgets/main/MainFormWindow.h"
#include "widgets/tool/QtVideoForms.h"

namespace {

using namespace velra;

// Opening a document takes and drops much memory again and again; giving it back to the system in
// between costs more than the work itself.
constexpr int kKeptMemory = 256 * 1024 * 1024;

// Blocks up to this size come from what was given back before. A picture in play takes some
// megabytes, and fresh pages for each cost as much as its colours.
constexpr int kLargestKeptBlock = 32 * 1024 * 1024;

// Small blocks join their neighbours as soon as they are given back. Kept apart, as the library
// does by itself, all of them are gone over later, when no cache holds them any more: closing a
// document of tens of thousands of objects takes half as much time again.
constexpr int kLargestBlockApart = 0;

// Behind the first painting, and before a hand can have reached a movie.
constexpr std::chrono::milliseconds kBeforeMovies{500};

int run(GuardedApplication& application, InterfaceLanguage language,
        const std::string& commandLine) {
  Texts::speak(language);
  QtUserInterface ui;
  MachineSettings machineSettings(MachineSettings::defaultPath());
  UserSettings userSettings(UserSettings::defaultPath());
  const SignalQuit quitBySignal;
  RescueWriter rescue(RescueStore::defaultPath());
  ApplicationModule app(ui, MessageCatalogue(language), machineSettings, userSettings);
  app.rescue = &rescue;
  application.setLastWish([&] { return keepAtUntrappedError(app); });
  application.setExitWish([&] { keepAtDisplayLoss(app); });
  QtFormPresenter presenter(app);
  QtVideoForms videoForms(app, [&](FormOwner& owner) { return presenter.windowOf(owner); });
  VideoFormServices forExpressions{app, makeMediaGraph, videoForms};
  Factory factory(app, presenter, [&] { return std::make_shared<VideoForm>(forExpressions); });
  frmMain rules(app);
  MainFormWindow window(app, rules);
  ui.setMainWindow(&window);
  presenter.setMainWindow(&window);
  rules.setDialogPresenter(&presenter);

  try {
    Main(app, rules, commandLine, {[&] { window.show(); }, [&] { window.showSplash(); }});
  } catch (const LeftInWork&) {
    // The window closes with the first events.
  }
  QTimer::singleShot(kBeforeMovies, loadMoviesAhead);
  // A box amid an opening from the command line may have taken the signal's event.
  const int status = quitBySignal.isAsked() ? 0 : QCoreApplication::exec();
  application.setLastWish({});
  application.setExitWish({});
  rules.releaseDocument();  // while the windows that it may report to are still there
  return status;
}

int runInWindows(int argc, char** argv, InterfaceLanguage language) {
  GuardedApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("velra"));
  QCoreApplication::setApplicationVersion(QStringLiteral(VELRA_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.velra.velra"));
  int status = 1;
  application.guarded([&] {
    status = run(application, language, commandLineOf(argc - 1, argv + 1, velra::currentFolder()));
  });
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  // Before anything that needs a display.
  const InterfaceLanguage language = interfaceLanguage(environmentLocale());
  if (const auto answer = terminalAnswer(argc - 1, argv + 1, language, VELRA_VERSION)) {
    return std::fputs(answer->c_str(), stdout) >= 0 && std::fflush(stdout) == 0 ? 0 : 1;
  }
  mallopt(M_TRIM_THRESHOLD, kKeptMemory);
  mallopt(M_MMAP_THRESHOLD, kLargestKeptBlock);
  mallopt(M_MXFAST, kLargestBlockApart);
  SignalQuit::holdSignals();
  const int status = runInWindows(argc, argv, language);
  if (areMoviesLoading()) std::_Exit(status);  // all is done that somebody could miss
  return status;
}
