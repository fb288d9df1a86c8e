// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "exchange/imports/ImportFormat.h"
#include "platform/movie/ShotFinder.h"

namespace velra {

class AVDocument;

/// A search for shots, and in which movie.
struct ShotTask {
  std::string movie;
  ShotSearch search;
};

/// The search that the options mean: over the time of the expression that is to take the shots.
/// Raises ExchangeFailure when that is not there, or has no movie.
ShotTask shotTask(AVDocument& document, const ImportOptions& options);

/// Shots, of all that were found or some of them, as segments "Shot 1", "Shot 2" ... What is told
/// of one names its row in the list of all.
Proposal proposalOf(const std::vector<FoundShot>& shots);

}  // namespace velra
