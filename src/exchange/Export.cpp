// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/Export.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/OptionWords.h"
#include "platform/files/FileMoves.h"

namespace velra {

namespace {

ObjectKind kindOption(const std::string& value) {
  for (const ObjectKind kind : {ObjectKind::Video, ObjectKind::Audio, ObjectKind::Transcript}) {
    if (equalIgnoringAsciiCase(value, classNameOf(kind))) return kind;
  }
  throw ExchangeFailure("--class takes video, audio or transcript, not \"" + value + "\".");
}

std::string baseOption(const std::string& value) {
  if (value.starts_with("http://") || value.starts_with("https://")) {
    return value.ends_with('/') ? value.substr(0, value.size() - 1) : value;
  }
  throw ExchangeFailure("--base takes an address of the web, not \"" + value + "\".");
}

// Options that stand alone; null for all others.
bool* exportSwitch(const std::string& option, ExportOptions& options) {
  if (option == "--segments") return &options.segments;
  if (option == "--plain") return &options.plain;
  return option == "--movies" ? &options.movies : nullptr;
}

void setExportOption(const std::string& option, const std::string& value, ExportOptions& options) {
  if (option == "-o") options.output = strAbsolutePath(value);
  if (option == "--class") options.kind = kindOption(value);
  if (option == "--level") options.level = numberOption(option, value);
  if (option == "--of-version") options.version = numberOption(option, value);
  if (option == "--rate") options.rate = rateOption(value);
  if (option == "--mapping") options.mapping = strAbsolutePath(value);
  if (option == "--base") options.base = baseOption(value);
}

void refuseOwnFiles(const Content& content, const std::string& output) {
  for (const ContentObject& object : content.objects) {
    for (const std::string& path : {content.fileOf(object), object.movie, object.picture}) {
      if (path.empty() || !bSamePath(path, output)) continue;
      throw ExchangeFailure(output + " belongs to the document; nothing is written over it.");
    }
  }
}

}  // namespace

ExportOptions exportOptions(const ExportFormat& format, const std::vector<std::string>& words) {
  ExportOptions options;
  OptionTaker{
      std::string(format.name),
      [&](const std::string& word) { return word == "-o" || isOptionOf(format.options, word); },
      [&](const std::string& word) { return exportSwitch(word, options); },
      [&](const std::string& word, const std::string& value) {
        setExportOption(word, value, options);
      }}
      .take(words);
  return options;
}

Exported exportContent(const ExportFormat& format, const Content& content,
                       const ExportOptions& options) {
  if (!options.output.empty()) refuseOwnFiles(content, options.output);
  if (format.makesFolder && options.output.empty()) {
    throw ExchangeFailure(std::string(format.name) + " makes a folder, which -o has to name.");
  }
  Exported exported = format.write(content, options);
  if (options.output.empty() || format.makesFolder) return exported;
  const std::string reason = replaceFile(options.output, exported.bytes);
  if (!reason.empty()) throw ExchangeFailure(options.output + ": " + reason);
  return exported;
}

}  // namespace velra
