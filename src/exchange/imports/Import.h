// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "exchange/ExchangeFailure.h"
#include "exchange/imports/ImportFormat.h"

namespace velra {

class ApplicationModule;
class AVDocument;

/// Words are to go where there are words, and nobody said that they go in place of these.
class WordsInTheWay : public ExchangeFailure {
 public:
  using ExchangeFailure::ExchangeFailure;
};

/// What came of an import.
struct ImportReport {
  std::size_t segments = 0;
  std::size_t words = 0;
  std::size_t refused = 0;         // rows
  bool nothing = false;            // all rows or none were wanted, and not all can be taken
  std::vector<std::string> lines;  // what is to be told of rows, in their order
  std::string closing;             // one sentence on the whole

  bool changed() const { return segments > 0 || words > 0; }
};

/// Takes what a file proposes into an open document, in memory: nothing is saved, and nothing is
/// changed before it is known which rows can be taken. The current folder is the document's. What
/// single objects have to say is shown. `progress` is told the share that is made. Raises
/// ExchangeFailure, WordsInTheWay among them, and run-time errors of a document
/// that is damaged, before anything is changed.
ImportReport importInto(ApplicationModule& app, AVDocument& document, const ImportFormat& format,
                        const std::string& path, const ImportOptions& options,
                        const std::function<void(double)>& progress = {});

/// The same for what has been read already.
ImportReport takeProposal(ApplicationModule& app, AVDocument& document, const ImportFormat& format,
                          const Proposal& proposal, const ImportOptions& options,
                          const std::function<void(double)>& progress = {});

/// Takes the options of one format from the words of a command line. Raises ExchangeFailure with a
/// sentence for a word that is none of them, and for a value that cannot be.
ImportOptions importOptions(const ImportFormat& format, const std::vector<std::string>& words);

}  // namespace velra
