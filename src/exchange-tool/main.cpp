// SPDX-License-Identifier: GPL-3.0-or-later

// velra-exchange: documents out of velra and into it, without windows.
#include <cstdio>
#include <string>
#include <vector>

#include "ConsoleInterface.h"
#include "Usage.h"
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

int wrongUse() {
  std::fputs(kUsage, stderr);
  return kUsageError;
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

int importFile(const ImportFormat& format, const std::string& file, const std::string& document,
               const ImportOptions& options) {
  RescueWriter rescue(RescueStore::defaultPath());
  Exchange exchange;
  exchange.app.rescue = &rescue;
  const ImportReport report = importIntoDocument(exchange.app, document, format, file, options);
  for (const std::string& line : report.lines) say(line);
  say(report.closing);
  if (report.nothing) return kFailed;
  return report.refused > 0 || exchange.ui.hasTold() ? kIncomplete : 0;
}

int importCommand(const std::vector<std::string>& words) {
  const ImportFormat* format = importFormat(words[1]);
  if (!format) return noFormat(words[1]);
  const std::size_t document = format->read ? 3 : 2;  // shots are in no file
  if (words.size() <= document) return wrongUse();
  ImportOptions options;
  try {
    const auto first = words.begin() + static_cast<std::ptrdiff_t>(document) + 1;
    options = importOptions(*format, {first, words.end()});
  } catch (const ExchangeFailure& failure) {
    say(failure.what());
    return kUsageError;
  }
  return importFile(*format, words[2], words[document], options);
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
  if (command == "import" && words.size() >= 3) return importCommand(words);
  if (command == "catalogue" && words.size() >= 3) return catalogue(words);
  if (command == "find" && words.size() >= 3) return find(words);
  if (command == "verify" && words.size() == 2) return verify(words[1]);
  return wrongUse();
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
