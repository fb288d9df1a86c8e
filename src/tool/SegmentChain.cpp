// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentChain.h"

#include <algorithm>
#include <unordered_set>

#include "base/Arithmetic.h"

namespace velra {

namespace {

template <class Step>
ExpressionList walk(const ExpressionRef& start, const Step& step) {
  ExpressionList passed;
  std::unordered_set<const Expression*> seen;
  for (ExpressionRef at = start; at && seen.insert(at.get()).second; at = step(at)) {
    passed.push_back(at);
  }
  return passed;
}

}  // namespace

SegmentChain::SegmentChain(const ExpressionList& children) {
  for (const ExpressionRef& child : children) {
    const ExpressionRef follower = child->objFollowedBy();
    if (!follower && !tail_) tail_ = child;
    if (follower) predecessors_.try_emplace(follower.get(), child);
  }
  const auto isHead = [&](const ExpressionRef& child) {
    return !predecessors_.contains(child.get());
  };
  const auto head = std::find_if(children.begin(), children.end(), isHead);
  if (head != children.end()) head_ = *head;
}

ExpressionRef SegmentChain::predecessorOf(const ExpressionRef& child) const {
  const auto entry = predecessors_.find(child.get());
  return entry == predecessors_.end() ? nullptr : entry->second;
}

ExpressionList SegmentChain::forward() const {
  return walk(head_, [](const ExpressionRef& at) { return at->objFollowedBy(); });
}

ExpressionList SegmentChain::backward() const {
  return walk(tail_, [&](const ExpressionRef& at) { return predecessorOf(at); });
}

ChainPositions::ChainPositions(const ExpressionList& children) {
  std::int16_t place = 0;
  for (const ExpressionRef& segment : SegmentChain(children).forward()) {
    place = addInt16(place, 1);
    places_[segment.get()] = place;
  }
}

std::int16_t ChainPositions::iChainPosition(const ExpressionRef& child) const {
  const auto place = places_.find(child.get());
  return place == places_.end() ? std::int16_t{0} : place->second;
}

}  // namespace velra
