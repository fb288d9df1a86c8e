// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/ShotImport.h"

#include "base/Paths.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ImportTarget.h"
#include "objects/AVDocument.h"
#include "platform/files/Files.h"
#include "values/TimeCode.h"

namespace velra {

ShotTask shotTask(AVDocument& document, const ImportOptions& options) {
  const ExpressionRef into =
      ImportTarget(document, kShotsImport, options).expressionFor(std::nullopt);
  ShotTask task;
  task.movie = into->strGetMediaObjectPath();
  if (task.movie.empty()) throw ExchangeFailure("\"" + into->strTitle() + "\" has no movie.");
  task.movie = strAbsolutePath(task.movie);
  if (!bFileExists(task.movie)) throw ExchangeFailure("The movie " + task.movie + " is not there.");
  task.search.threshold = options.threshold.value_or(ShotSearch::kUsualThreshold);
  task.search.shortest = options.shortest.value_or(ShotSearch::kUsualShortest);
  if (const auto span = into->ckGetChunk(); span && span->dend > span->dStart) {
    task.search.from = span->dStart;
    task.search.to = span->dend;
  }
  return task;
}

Proposal proposalOf(const std::vector<FoundShot>& shots) {
  Proposal proposal;
  int number = 0;
  for (const FoundShot& shot : shots) {
    ++number;
    proposal.segments.push_back({shot.number,
                                 inWholeMilliseconds(shot.start),
                                 inWholeMilliseconds(shot.end),
                                 "Shot " + std::to_string(number),
                                 1,
                                 {},
                                 {}});
  }
  return proposal;
}

const ImportFormat kShotsImport{"shots", "Shots", "",
                                "the shots of the movie, from cut to cut; without a file",
                                "threshold shortest"};

}  // namespace velra
