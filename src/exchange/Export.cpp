// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/Export.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"
#include "exchange/ExchangeFailure.h"
#include "platform/files/FileMoves.h"

namespace velra {

namespace {

constexpr int kMostOptionNumber = 1'000'000;

ObjectKind kindOption(const std::string& value) {
  for (const ObjectKind kind : {ObjectKind::Video, ObjectKind::Audio, ObjectKind::Transcript}) {
    if (equalIgnoringAsciiCase(value, classNameOf(kind))) return kind;
  }
  throw ExchangeFailure("--class takes video, audio or transcript, not \"" + value + "\".");
}

int numberOption(const std::string& option, const std::string& value) {
  const auto number = toNumber(value);
  const bool whole = number && *number >= 1 && *number <= kMostOptionNumber &&
                     *number == static_cast<int>(*number);
  if (!whole) throw ExchangeFailure(option + " takes a number from 1, not \"" + value + "\".");
  return static_cast<int>(*number);
}

double rateOption(const std::string& value) {
  constexpr double kMostPictures = 1000;
  const auto rate = toNumber(value);
  if (!rate || *rate < 1 || *rate > kMostPictures) {
    throw ExchangeFailure("--rate takes pictures per second from 1 to 1000, not \"" + value +
                          "\".");
  }
  return *rate;
}

std::string baseOption(const std::string& value) {
  if (value.starts_with("http://") || value.starts_with("https://")) {
    return value.ends_with('/') ? value.substr(0, value.size() - 1) : value;
  }
  throw ExchangeFailure("--base takes an address of the web, not \"" + value + "\".");
}

// Options that stand alone; null for all others.
bool* switchOf(const std::string& option, ExportOptions& options) {
  if (option == "--segments") return &options.segments;
  return option == "--movies" ? &options.movies : nullptr;
}

bool takes(const ExportFormat& format, const std::string& option) {
  const auto names = split(format.options, ' ');
  return option.starts_with("--") &&
         std::find(names.begin(), names.end(), option.substr(2)) != names.end();
}

void setOption(const std::string& option, const std::string& value, ExportOptions& options) {
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
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word != "-o" && !takes(format, word)) {
      throw ExchangeFailure(std::string(format.name) + " takes no \"" + word + "\".");
    }
    if (bool* const on = switchOf(word, options)) {
      *on = true;
      continue;
    }
    if (++i == words.size() || words[i].empty()) {
      throw ExchangeFailure(word + " needs a value behind it.");
    }
    setOption(word, words[i], options);
  }
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
