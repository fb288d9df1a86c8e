// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "exchange/ExportFormat.h"

namespace velra {

/// Takes the options of one format from the words of a command line, "-o FILE" among them; the path
/// is made absolute. Raises ExchangeFailure with a sentence for a word that is none of them, and
/// for a value that cannot be.
ExportOptions exportOptions(const ExportFormat& format, const std::vector<std::string>& words);

/// Writes the format and, if the options name a file, the file, whole or not at all; one that was
/// there is replaced, but never a file of the document. Raises ExchangeFailure.
Exported exportContent(const ExportFormat& format, const Content& content,
                       const ExportOptions& options);

}  // namespace velra
