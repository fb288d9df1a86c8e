// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tsl/robin_map.h>

#include <cstddef>
#include <cstdint>

#include "protocol/Expression.h"

namespace velra {

/// A table in one row: a walk from node to node waits for memory at every step. Addresses are their
/// own hashes and all even, so the size is a prime number.
template <class Value>
using OfSegment = tsl::robin_pg_map<const Expression*, Value>;

/// The children of an expression in order of time, as `objFollowedBy` links them. Made for one call
/// and never kept, since the children change; each child is read once, so that a walk is linear. A
/// chain that runs into itself ends there.
class SegmentChain {
 public:
  explicit SegmentChain(const ExpressionList& children);

  /// From the head (the first child that none is followed by) to the end. Empty without a head.
  ExpressionList forward() const;
  /// From the tail (the first child that nothing follows) back to the start. Of two children with
  /// the same follower the first is its predecessor. Empty without a tail.
  ExpressionList backward() const;

 private:
  ExpressionRef predecessorOf(const ExpressionRef& child) const;

  std::size_t members_;
  OfSegment<ExpressionRef> predecessors_;
  ExpressionRef head_;
  ExpressionRef tail_;
};

/// Places in order of time from 1, for the children that the chain reaches from its head.
class ChainPositions {
 public:
  explicit ChainPositions(const ExpressionList& children);

  /// 0 when the chain does not reach the child.
  std::int16_t iChainPosition(const ExpressionRef& child) const;

 private:
  OfSegment<std::int16_t> places_;
};

}  // namespace velra
