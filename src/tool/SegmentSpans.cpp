// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentSpans.h"

#include <algorithm>

#include "base/RunTimeError.h"
#include "tool/SegmentChain.h"

namespace velra {

std::shared_ptr<Chunk> spanOf(const Expression& segment) {
  auto span = segment.ckGetChunk();
  if (!span) raise(kNoObject);
  return span;
}

bool bHoldsPoint(double start, double end, double point) {
  return start < point && end > point;
}

bool bLiesBetween(double start, double end, double from, double to) {
  return start >= from && end <= to;
}

bool bPointIsFree(const ExpressionList& children, double point) {
  return std::none_of(children.begin(), children.end(), [&](const ExpressionRef& child) {
    const auto span = spanOf(*child);
    return bHoldsPoint(span->dStart, span->dend, point);
  });
}

bool bIntervalHoldsNoSegment(const ExpressionList& children, double from, double to) {
  return std::none_of(children.begin(), children.end(), [&](const ExpressionRef& child) {
    const auto span = spanOf(*child);
    return bLiesBetween(span->dStart, span->dend, from, to);
  });
}

bool bBoundsAreFree(const ExpressionList& children, double from, double to) {
  return bPointIsFree(children, from) && bPointIsFree(children, to);
}

std::optional<double> boundAfter(const ExpressionList& children, double time) {
  for (const ExpressionRef& segment : SegmentChain(children).forward()) {
    const auto span = spanOf(*segment);
    if (span->dStart > time) return span->dStart;
    if (span->dend > time) return span->dend;
  }
  return std::nullopt;
}

ExpressionRef segmentStartingFrom(const ExpressionList& children, double time) {
  for (const ExpressionRef& segment : SegmentChain(children).forward()) {
    if (spanOf(*segment)->dStart >= time) return segment;
  }
  return nullptr;
}

std::optional<double> boundBefore(const ExpressionList& children, double time) {
  for (const ExpressionRef& segment : SegmentChain(children).backward()) {
    const auto span = spanOf(*segment);
    if (span->dend < time) return span->dend;
    if (span->dStart < time) return span->dStart;
  }
  return std::nullopt;
}

ExpressionRef segmentEndingBy(const ExpressionList& children, double time) {
  for (const ExpressionRef& segment : SegmentChain(children).backward()) {
    if (spanOf(*segment)->dend <= time) return segment;
  }
  return nullptr;
}

}  // namespace velra
