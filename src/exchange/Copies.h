// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "exchange/Content.h"
#include "platform/movie/MovieFacts.h"

namespace velra {

/// A stored copy of a Version, as records of archives want it.
struct Copy {
  /// The Version, its Media and the Storage; a Media without a Storage is the copy itself.
  std::vector<const ContentObject*> ladder;
  MovieFacts facts;  // empty where no movie is named

  const ContentObject& itself() const { return *ladder.back(); }
};

/// The copies of a Version in order. The content outlives them.
std::vector<Copy> copiesOf(const Content& content, const ContentObject& version);

}  // namespace velra
