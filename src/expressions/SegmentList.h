// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/Expression.h"

namespace velra {

class ExpressionBase;

/// The segments of an expression, in the order in which they were opened or added.
class SegmentList {
 public:
  const ExpressionList& all() const { return segments_; }

  void replace(ExpressionList segments) { segments_ = std::move(segments); }
  void clear() { segments_.clear(); }
  void add(const ExpressionRef& segment) { segments_.push_back(segment); }
  void forget(const DescribedObject& removed);

  /// Chains those that name one another. kNoObject for one that is not there.
  void linkFollowers();

  /// Chains a new segment between the nearest one that has ended by its start and the nearest that
  /// begins after its end. kNoObject when one of them all has no span.
  void link(ExpressionBase& segment, double dStart, double dend) const;

 private:
  ExpressionRef endingBefore(double seconds) const;
  ExpressionRef beginningAfter(double seconds) const;

  ExpressionList segments_;
};

}  // namespace velra
