// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentSpans.h"

#include <algorithm>

#include "base/RunTimeError.h"

namespace velra {

std::shared_ptr<Chunk> spanOf(const Expression& segment) {
  auto span = segment.ckGetChunk();
  if (!span) raise(kNoObject);
  return span;
}

bool bPointIsFree(const ExpressionList& children, double point) {
  return std::none_of(children.begin(), children.end(), [&](const ExpressionRef& child) {
    const auto span = spanOf(*child);
    return span->dStart < point && span->dend > point;
  });
}

bool bIntervalHoldsNoSegment(const ExpressionList& children, double from, double to) {
  return std::none_of(children.begin(), children.end(), [&](const ExpressionRef& child) {
    const auto span = spanOf(*child);
    return span->dStart >= from && span->dend <= to;
  });
}

bool bBoundsAreFree(const ExpressionList& children, double from, double to) {
  return bPointIsFree(children, from) && bPointIsFree(children, to);
}

}  // namespace velra
