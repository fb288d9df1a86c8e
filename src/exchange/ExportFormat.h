// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/Content.h"

namespace velra {

/// What a person may say of an export. Each format tells which of these it looks at.
struct ExportOptions {
  std::string output;              // absolute path; "" for standard output
  std::optional<ObjectKind> kind;  // of the segments
  std::optional<int> level;        // of the segments, from 1
  std::optional<int> version;      // which of the document's Versions, from 1
  std::optional<double> rate;      // pictures per second
  bool segments = false;           // segments instead of words
  bool movies = false;             // the movies too
  bool plain = false;              // cues without the times of their words
  std::string mapping;             // absolute path of a mapping file; "" for the schema's own
  std::string base;                // address under which the files are served; no "/" at its end
};

/// What comes of it.
struct Exported {
  std::string bytes;
  std::vector<std::string> notes;  // closing sentences for the person
};

/// One format to write. A new one is a file in formats/ that defines one of these, and its lines in
/// ExportFormats.h and .cpp.
struct ExportFormat {
  std::string_view name;
  std::string_view title;  // by which people know it, in any language
  /// Of its files, without the first point. XML has the format's name before it, since beside the
  /// document "film.xml" is the document itself.
  std::string_view extension;
  std::string_view what;  // one line
  /// The options that it takes, without their dashes, a blank between them.
  std::string_view options;
  /// Raises ExchangeFailure.
  Exported (*write)(const Content& content, const ExportOptions& options);
  /// True for one that writes a folder of its own, the output, and returns no bytes.
  bool makesFolder = false;
};

/// All of them, in the order of the list that people see.
const std::vector<const ExportFormat*>& exportFormats();

/// Null when there is none of that name.
const ExportFormat* exportFormat(std::string_view name);

}  // namespace velra
