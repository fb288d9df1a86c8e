// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentChain.h"

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
    entries_.try_emplace(child.get(), Entry{entries_.size() + 1, nullptr});
  }
  linkPredecessors(children);
}

void SegmentChain::linkPredecessors(const ExpressionList& children) {
  for (const ExpressionRef& child : children) {
    const ExpressionRef follower = child->objFollowedBy();
    if (!follower && !tail_) tail_ = child;
    const auto entry = entries_.find(follower.get());
    if (entry != entries_.end() && !entry->second.predecessor) entry->second.predecessor = child;
  }
  for (const ExpressionRef& child : children) {
    if (entries_.at(child.get()).predecessor) continue;
    head_ = child;
    return;
  }
}

ExpressionList SegmentChain::forward() const {
  return walk(head_, [](const ExpressionRef& at) { return at->objFollowedBy(); });
}

ExpressionList SegmentChain::backward() const {
  return walk(tail_, [&](const ExpressionRef& at) { return entries_.at(at.get()).predecessor; });
}

std::int16_t SegmentChain::listPosition(const ExpressionRef& child) const {
  const auto entry = entries_.find(child.get());
  const std::size_t position = entry == entries_.end() ? 0 : entry->second.position;
  return toInt16(static_cast<double>(position));
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
