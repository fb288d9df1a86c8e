// SPDX-License-Identifier: GPL-3.0-or-later

// velra-exchange: documents out of velra and into it, without windows.
#include <cstdio>
#include <string>
#include <vector>

#include "ConsoleInterface.h"
#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "exchange/BagCheck.h"
#include "exchange/DocumentReading.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/Export.h"
#include "exchange/FormlessFactory.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"

namespace {

using namespace velra;

constexpr const char* kUsage = R"(Usage:
  velra-exchange export FORMAT DOCUMENT [-o FILE] [OPTION ...]
  velra-exchange verify BAG                whether the files of a bag are what they were
  velra-exchange --list                    the formats, and which options each takes
  velra-exchange --help | --version

Options:
  -o FILE            writes there, in place of what is there; else to standard output
  --class CLASS      segments of video, audio or transcript
  --level N          segments of that level: 1 for those of the whole movie, 2 for theirs ...
  --of-version N     of the N-th Version; by default of all, or of the first where one it must be
  --segments         segments in place of words
  --rate R           pictures per second
  --movies           the movies too
  --mapping FILE     which field is which element; by default the one beside the schema
  --base ADDRESS     where on the web the document's folder is served

The schema and the vocabulary are those of velra's settings (VELRA_MACHINE_SETTINGS names another
file of them). The document is only read. A save that was cut off has to be finished first, by
opening the document in velra.

Exit status: 0 done; 1 not done, and nothing is written; 2 wrong use; 3 done, but something of the
document could not be read, as told.
)";

constexpr int kFailed = 1;
constexpr int kUsageError = 2;
constexpr int kIncomplete = 3;

void say(const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
}

bool write(const std::string& bytes) {
  return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() &&
         std::fflush(stdout) == 0;
}

int list() {
  std::string text;
  for (const ExportFormat* format : exportFormats()) {
    char line[160];
    std::snprintf(line, sizeof line, "%-10s %s\n", std::string(format->name).c_str(),
                  std::string(format->what).c_str());
    text += line;
    std::string options(format->options);
    for (std::size_t at = 0; (at = options.find(' ', at)) != std::string::npos; at += 3) {
      options.replace(at, 1, " --");
    }
    if (!options.empty()) text += "           --" + options + '\n';
  }
  return write(text) ? 0 : kFailed;
}

int exportDocument(const ExportFormat& format, const std::string& document,
                   const ExportOptions& options) {
  ConsoleInterface ui;
  MachineSettings machineSettings(MachineSettings::defaultPath());
  UserSettings userSettings(UserSettings::defaultPath());
  ApplicationModule app(ui, MessageCatalogue(InterfaceLanguage::Default), machineSettings,
                        userSettings);
  const FormlessFactory factory(app);
  const Content content = readContent(app, document);
  const Exported exported = exportContent(format, content, options);
  if (options.output.empty() && !write(exported.bytes)) {
    throw ExchangeFailure("Standard output takes no more.");
  }
  for (const std::string& note : exported.notes) say(note);
  return ui.hasTold() ? kIncomplete : 0;
}

int verify(const std::string& bag) {
  const std::vector<std::string> faults = bagFaults(strAbsolutePath(bag));
  for (const std::string& fault : faults) say(fault);
  if (faults.empty()) say("All files of the bag are what they were.");
  return faults.empty() ? 0 : kFailed;
}

int exportCommand(const std::vector<std::string>& words) {
  const ExportFormat* format = exportFormat(words[1]);
  if (!format) {
    say("There is no format \"" + words[1] + "\"; velra-exchange --list tells which there are.");
    return kUsageError;
  }
  ExportOptions options;
  try {
    options = exportOptions(*format, {words.begin() + 3, words.end()});
  } catch (const ExchangeFailure& failure) {
    say(failure.what());
    return kUsageError;
  }
  return exportDocument(*format, words[2], options);
}

int run(const std::vector<std::string>& words) {
  const std::string command = words.empty() ? "" : words[0];
  const bool alone = words.size() == 1;
  if (command == "--help" && alone) return write(kUsage) ? 0 : kFailed;
  if (command == "--list" && alone) return list();
  if (command == "--version" && alone) return write("velra-exchange " VELRA_VERSION "\n") ? 0 : 1;
  if (command == "export" && words.size() >= 3) return exportCommand(words);
  if (command == "verify" && words.size() == 2) return verify(words[1]);
  std::fputs(kUsage, stderr);
  return kUsageError;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    say(error.what());
    return kFailed;
  }
}
