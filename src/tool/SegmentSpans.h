// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/Expression.h"

namespace velra {

/// The span of a segment; kNoObject when it has none.
std::shared_ptr<Chunk> spanOf(const Expression& segment);

/// Whether times may become bounds of a new segment. All take seconds and look at every child; one
/// without a span raises kNoObject.

/// False strictly inside a child; a child's own bounds are free.
bool bPointIsFree(const ExpressionList& children, double point);

/// False when a child lies between the two times, touching them included. Times in reverse order
/// have nothing between them.
bool bIntervalHoldsNoSegment(const ExpressionList& children, double from, double to);

/// False when one of the times lies strictly inside a child.
bool bBoundsAreFree(const ExpressionList& children, double from, double to);

}  // namespace velra
