// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "exchange/ExportFormat.h"

namespace velra {

using ContentList = std::vector<const ContentObject*>;

/// The Version that the options name, by default the first; null when the document has none. Raises
/// ExchangeFailure for a number beyond the last.
const ContentObject* chosenVersion(const Content& content, const ExportOptions& options);

/// Every segment that the options let pass, in the order of the walk; main expressions are none.
ContentList allSegments(const Content& content, const ExportOptions& options);

/// The segments of one level (by default the first) of one expression of the Version: of the class
/// that the options name, else the first of Video, Audio and Transcript that has such segments. By
/// their starts; those without a time are left out.
ContentList segmentsOfLevel(const Content& content, const ExportOptions& options);

/// The words that say anything, by their starts, blanks and line ends in them joined.
std::vector<ContentWord> spoken(std::vector<ContentWord> words);

/// Those of the Version's main Transcript.
std::vector<ContentWord> spokenWords(const Content& content, const ExportOptions& options);

}  // namespace velra
