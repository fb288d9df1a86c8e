// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/imports/Proposal.h"

namespace velra {

/// What a person may say of an import. Each format tells which of these it looks at.
struct ImportOptions {
  std::string into;                 // path or title of the expression; "" for the usual one
  std::optional<int> version;       // which of the document's Versions, from 1
  std::optional<double> rate;       // pictures per second, in place of the expression's own
  std::string startLabel;           // what stands on the movie's first picture; "" for 0
  std::optional<double> threshold;  // of cuts; see ShotSearch
  std::optional<double> shortest;   // seconds of a shot
  bool segments = false;            // cues become segments too
  bool replace = false;             // words go in place of those that are there
  bool record = false;              // the record side of a cut list
  bool strict = false;              // all rows or none
};

/// One format to read. A new one is a file in imports/formats/ that defines one of these, and its
/// lines in ImportFormats.h and .cpp.
struct ImportFormat {
  std::string_view name;
  std::string_view title;       // by which people know it, in any language
  std::string_view extensions;  // of its files, without the point, a blank between them
  std::string_view what;        // one line
  /// The options that it takes besides those of all, without their dashes, a blank between them.
  std::string_view options;
  /// Made for words: without a name of one it goes into the Transcript.
  bool words = false;
  /// Reads a whole text. `rate` is pictures per second, 0 where nothing tells it. Raises
  /// ExchangeFailure for a text that is no file of the format. Null for shots, which are found in
  /// the movie and in no file.
  Proposal (*read)(const std::string& text, const ImportOptions& options, double rate) = nullptr;
};

/// All of them, in the order of the list that people see.
const std::vector<const ImportFormat*>& importFormats();

/// Null when there is none of that name.
const ImportFormat* importFormat(std::string_view name);

/// The format of a file by its name's end; null when there is none.
const ImportFormat* importFormatOf(const std::string& path);

}  // namespace velra
