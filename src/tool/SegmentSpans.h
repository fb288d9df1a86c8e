// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>

#include "protocol/Expression.h"

namespace velra {

/// The span of a segment; kNoObject when it has none.
std::shared_ptr<Chunk> spanOf(const Expression& segment);

/// What one segment, from `start` to `end`, says of the times of a new one: that a time lies
/// strictly inside it, since its own bounds are free; and that it lies between two times, touching
/// included. Times in reverse order have nothing between them.
bool bHoldsPoint(double start, double end, double point);
bool bLiesBetween(double start, double end, double from, double to);

/// Whether times may become bounds of a new segment. All take seconds and look at every child; one
/// without a span raises kNoObject.

/// False strictly inside a child; a child's own bounds are free.
bool bPointIsFree(const ExpressionList& children, double point);

/// False when a child lies between the two times, touching them included.
bool bIntervalHoldsNoSegment(const ExpressionList& children, double from, double to);

/// False when one of the times lies strictly inside a child.
bool bBoundsAreFree(const ExpressionList& children, double from, double to);

/// Along the chain of the children, from its head: the first bound behind a time, and the first
/// segment that starts at the time or behind it; nothing when there is none.
std::optional<double> boundAfter(const ExpressionList& children, double time);
ExpressionRef segmentStartingFrom(const ExpressionList& children, double time);

/// The same backwards from the chain's tail: the first bound before a time, and the first segment
/// that ends at the time or before it.
std::optional<double> boundBefore(const ExpressionList& children, double time);
ExpressionRef segmentEndingBy(const ExpressionList& children, double time);

}  // namespace velra
