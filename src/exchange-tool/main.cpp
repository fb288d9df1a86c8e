// SPDX-License-Identifier: GPL-3.0-or-later

// velra-exchange: documents out of velra and into it, without windows.
#include <cstdio>
#include <string>
#include <vector>

#include "ConsoleInterface.h"
#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueLoading.h"
#include "exchange/BagCheck.h"
#include "exchange/ContentText.h"
#include "exchange/DocumentReading.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/Export.h"
#include "exchange/FormlessFactory.h"
#include "exchange/imports/DocumentImport.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"

namespace {

using namespace velra;

constexpr const char* kUsage = R"(Usage:
  velra-exchange export FORMAT DOCUMENT [-o FILE] [OPTION ...]
  velra-exchange import FORMAT FILE DOCUMENT [OPTION ...]
  velra-exchange catalogue DATABASE DOCUMENT ...
  velra-exchange find DATABASE WORD ...
  velra-exchange verify BAG                whether the files of a bag are what they were
  velra-exchange --list                    the formats, and which options each takes
  velra-exchange --help | --version

Options of an export:
  -o FILE            writes there, in place of what is there; else to standard output
  --class CLASS      segments of video, audio or transcript
  --level N          segments of that level: 1 for those of the whole movie, 2 for theirs ...
  --of-version N     of the N-th Version; by default of all, or of the first where one it must be
  --segments         segments in place of words
  --plain            cues without the times of their words
  --rate R           pictures per second
  --movies           the movies too
  --mapping FILE     which field is which element; by default the one beside the schema
  --base ADDRESS     where on the web the document's folder is served

Options of an import:
  --into NAME        the Video, Audio or Transcript of that title, or in that file; by default the
                     main one of the first Version, for words the Transcript
  --of-version N     that of the N-th Version
  --strict           all rows or none
  --segments         cues become segments too
  --replace          words go in place of those that are there
  --rate R           pictures per second
  --record           the record side of a cut list
  --start LABEL      what a cut list has for the movie's first picture, as 01:00:00:00

A catalogue is a SQLite file or an address as postgresql://user@host/database. It takes the documents
that have changed since last time, and forgets those whose files are gone. A line of what is found:
document, class, title, time, field and text, tabs between them; a word may end in "*".

The schema and the vocabulary are those of velra's settings (VELRA_MACHINE_SETTINGS names another
file of them). An export only reads the document. A save that was cut off has to be finished first,
by opening the document in velra. An import saves the document at its end, when any row was taken.

Exit status: 0 done; 1 not done, and nothing is written; 2 wrong use; 3 done, but something of the
document could not be read, or a row not taken, as told.
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

// The program without windows.
struct Exchange {
  ConsoleInterface ui;
  MachineSettings machineSettings{MachineSettings::defaultPath()};
  UserSettings userSettings{UserSettings::defaultPath()};
  ApplicationModule app{ui, MessageCatalogue(InterfaceLanguage::Default), machineSettings,
                        userSettings};
  FormlessFactory factory{app};
};

template <class Format>
std::string inList(const std::vector<const Format*>& formats) {
  std::string text;
  for (const Format* format : formats) {
    char line[160];
    std::snprintf(line, sizeof line, "  %-10s %s\n", std::string(format->name).c_str(),
                  std::string(format->what).c_str());
    text += line;
    const std::string options = replaceAll(std::string(format->options), " ", " --");
    if (!options.empty()) text += "             --" + options + '\n';
  }
  return text;
}

int list() {
  const std::string text =
      "export:\n" + inList(exportFormats()) + "import:\n" + inList(importFormats());
  return write(text) ? 0 : kFailed;
}

int noFormat(const std::string& name) {
  say("There is no format \"" + name + "\"; velra-exchange --list tells which there are.");
  return kUsageError;
}

int exportDocument(const ExportFormat& format, const std::string& document,
                   const ExportOptions& options) {
  Exchange exchange;
  const Content content = readContent(exchange.app, document);
  const Exported exported = exportContent(format, content, options);
  if (options.output.empty() && !write(exported.bytes)) {
    throw ExchangeFailure("Standard output takes no more.");
  }
  for (const std::string& note : exported.notes) say(note);
  return exchange.ui.hasTold() ? kIncomplete : 0;
}

int verify(const std::string& bag) {
  const std::vector<std::string> faults = bagFaults(strAbsolutePath(bag));
  for (const std::string& fault : faults) say(fault);
  if (faults.empty()) say("All files of the bag are what they were.");
  return faults.empty() ? 0 : kFailed;
}

int exportCommand(const std::vector<std::string>& words) {
  const ExportFormat* format = exportFormat(words[1]);
  if (!format) return noFormat(words[1]);
  ExportOptions options;
  try {
    options = exportOptions(*format, {words.begin() + 3, words.end()});
  } catch (const ExchangeFailure& failure) {
    say(failure.what());
    return kUsageError;
  }
  return exportDocument(*format, words[2], options);
}

int importFile(const ImportFormat& format, const std::vector<std::string>& words,
               const ImportOptions& options) {
  RescueWriter rescue(RescueStore::defaultPath());
  Exchange exchange;
  exchange.app.rescue = &rescue;
  const ImportReport report = importIntoDocument(exchange.app, words[3], format, words[2], options);
  for (const std::string& line : report.lines) say(line);
  say(report.closing);
  if (report.nothing) return kFailed;
  return report.refused > 0 || exchange.ui.hasTold() ? kIncomplete : 0;
}

int importCommand(const std::vector<std::string>& words) {
  const ImportFormat* format = importFormat(words[1]);
  if (!format) return noFormat(words[1]);
  ImportOptions options;
  try {
    options = importOptions(*format, {words.begin() + 4, words.end()});
  } catch (const ExchangeFailure& failure) {
    say(failure.what());
    return kUsageError;
  }
  return importFile(*format, words, options);
}

int catalogue(const std::vector<std::string>& words) {
  const auto database = openCatalogue(words[1]);
  Exchange exchange;
  const CatalogueLoad load =
      loadIntoCatalogue(exchange.app, *database, {words.begin() + 2, words.end()}, say);
  say(std::to_string(load.loaded) + " documents loaded, " + std::to_string(load.unchanged) +
      " unchanged, " + std::to_string(load.gone) + " gone, " + std::to_string(load.failed) +
      " failed.");
  if (load.failed == words.size() - 2) return kFailed;
  return load.failed > 0 || exchange.ui.hasTold() ? kIncomplete : 0;
}

std::string lineOf(const CatalogueHit& hit) {
  const std::string time = hit.start ? timeCodeOf(*hit.start, hit.rate) : std::string();
  std::string line = hit.document + '\t' + hit.className + '\t' + oneLine(hit.title) + '\t' + time;
  return line + '\t' + hit.field + ": " + oneLine(hit.text) + '\n';
}

int find(const std::vector<std::string>& words) {
  constexpr int kMostHits = 1000;
  std::string sought;
  for (std::size_t i = 2; i < words.size(); ++i) sought += words[i] + ' ';
  const auto hits = openForSearch(words[1])->find(sought, kMostHits);
  std::string lines;
  for (const CatalogueHit& hit : hits) lines += lineOf(hit);
  if (!write(lines)) return kFailed;
  say(std::to_string(hits.size()) + " found.");
  return 0;
}

int run(const std::vector<std::string>& words) {
  const std::string command = words.empty() ? "" : words[0];
  const bool alone = words.size() == 1;
  if (command == "--help" && alone) return write(kUsage) ? 0 : kFailed;
  if (command == "--list" && alone) return list();
  if (command == "--version" && alone) return write("velra-exchange " VELRA_VERSION "\n") ? 0 : 1;
  if (command == "export" && words.size() >= 3) return exportCommand(words);
  if (command == "import" && words.size() >= 4) return importCommand(words);
  if (command == "catalogue" && words.size() >= 3) return catalogue(words);
  if (command == "find" && words.size() >= 3) return find(words);
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
