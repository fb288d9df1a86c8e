// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentChain.h"

#include <algorithm>
#include <unordered_set>

#include "base/Arithmetic.h"

namespace velra {

namespace {

/// From the start on, to the end or to where the chain runs into itself.
template <class Step>
ExpressionList walk(const ExpressionRef& start, std::size_t members, const Step& step) {
  ExpressionList passed;
  passed.reserve(members);
  ExpressionRef at = start;
  for (; at && passed.size() < members; at = step(at)) passed.push_back(at);
  if (!at) return passed;
  // Longer than its members are many: only such a one may have no end.
  passed.clear();
  std::unordered_set<const Expression*> seen;
  for (at = start; at && seen.insert(at.get()).second; at = step(at)) passed.push_back(at);
  return passed;
}

}  // namespace

SegmentChain::SegmentChain(const ExpressionList& children) : members_(children.size()) {
  predecessors_.reserve(members_);
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
  return walk(head_, members_, [](const ExpressionRef& at) { return at->objFollowedBy(); });
}

ExpressionList SegmentChain::backward() const {
  return walk(tail_, members_, [&](const ExpressionRef& at) { return predecessorOf(at); });
}

ChainPositions::ChainPositions(const ExpressionList& children) {
  places_.reserve(children.size());
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
