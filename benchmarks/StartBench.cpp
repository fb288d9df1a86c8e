// SPDX-License-Identifier: GPL-3.0-or-later
#include "StartBench.h"

#include <QStandardPaths>
#include <cstdio>
#include <filesystem>

#include "RunFolder.h"
#include "StartWatch.h"
#include "VirtualDisplay.h"
#include "app/ApplicationModule.h"
#include "platform/settings/MachineSettings.h"

namespace velra::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 9;

// A home of its own, and no message bus: one would be started for the first program that asks.
std::vector<std::string> environmentIn(const std::string& home, const std::string& display) {
  return {"PATH=/usr/bin:/bin",
          "LC_ALL=C.UTF-8",
          "QT_QPA_PLATFORM=xcb",
          "DISPLAY=" + display,
          "HOME=" + home,
          "XDG_RUNTIME_DIR=" + home,
          "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent",
          "VELRA_MACHINE_SETTINGS=" + home + "/machine.ini"};
}

std::string preparedHome(RunFolder& run) {
  const std::string home = run.make("home");
  fs::permissions(home, fs::perms::owner_all);  // the toolkit asks for that
  fs::copy(VELRA_SOURCE_DIR "/data/sample", home + "/sample", fs::copy_options::recursive);
  MachineSettings settings(home + "/machine.ini");
  settings.write(ApplicationModule::kMachineSection, "XSDPath",
                 VELRA_SOURCE_DIR "/data/schema/velra.xsd");
  settings.write(ApplicationModule::kMachineSection, "ThematicKeywordsPath",
                 VELRA_SOURCE_DIR "/data/ThematicKeywords.xml");
  return home;
}

}  // namespace

std::vector<Measure> measureStart(const std::string& folder) {
  const VirtualDisplay display;
  if (display.name().empty() ||
      QStandardPaths::findExecutable(QStringLiteral("keepassxc")).isEmpty()) {
    std::printf("Start: left out, since Xvfb or keepassxc is not installed.\n");
    return {};
  }
  RunFolder run(folder);
  const std::string home = preparedHome(run);
  const std::vector<std::string> environment = environmentIn(home, display.name());
  const fs::path program = fs::read_symlink("/proc/self/exe").parent_path() / "velra";
  const std::vector<std::string> commands[] = {{program, home + "/sample/lighthouse.xml"},
                                               {"keepassxc"}};
  Times times[2];
  // The first round, in which the homes are filled, does not count.
  for (int round = 0; round <= kRounds; ++round) {
    for (int i = 0; i < 2; ++i) {
      const auto spent = timeToWindow(display.name(), commands[i], environment);
      if (!spent) return {{commands[i].front() + " shows no window", 1, "", 0}};
      if (round > 0) times[i].add(*spent);
    }
  }
  std::printf("best of %d starts: %.0f ms, KeePassXC %.0f\n", kRounds, times[0].at(0),
              times[1].at(0));
  return {
      {"to the window with the sample / KeePassXC's", times[0].at(0) / times[1].at(0), "", 0.5}};
}

}  // namespace velra::bench
