// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/SegmentList.h"

#include <algorithm>
#include <unordered_map>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "expressions/ExpressionBase.h"

namespace velra {

namespace {

// Of the siblings in a walk the nearest counts, but one at distance 0 leaves the place open to any
// later candidate.
class Nearest {
 public:
  void consider(const ExpressionRef& sibling, double distance) {
    if (distance < 0 || (best_ != 0 && distance >= best_)) return;
    best_ = distance;
    sibling_ = sibling;
  }
  const ExpressionRef& sibling() const { return sibling_; }

 private:
  double best_ = 0;
  ExpressionRef sibling_;
};

const Chunk& chunkOf(const std::shared_ptr<Chunk>& chunk) {
  if (!chunk) raise(kNoObject);
  return *chunk;
}

}  // namespace

void SegmentList::forget(const DescribedObject& removed) {
  const auto at =
      std::find_if(segments_.begin(), segments_.end(), [&](const ExpressionRef& segment) {
        return static_cast<const DescribedObject*>(segment.get()) == &removed;
      });
  if (at != segments_.end()) segments_.erase(at);
}

// Each child that another child names as its follower becomes that; where two have one identifier,
// the later one counts.
void SegmentList::linkFollowers() {
  std::unordered_map<std::string, ExpressionRef> byPath;
  for (const ExpressionRef& segment : segments_) {
    if (!segment) raise(kNoObject);
    byPath[strAbsolutePath(segment->strGUID())] = segment;
  }
  for (const ExpressionRef& segment : segments_) {
    const auto next = byPath.find(strAbsolutePath(segment->strFollowedBy()));
    if (next != byPath.end()) segment->setObjFollowedBy(next->second);
  }
}

ExpressionRef SegmentList::endingBefore(double seconds) const {
  Nearest nearest;
  for (const ExpressionRef& sibling : segments_) {
    const auto chunk = sibling->ckGetChunk();
    nearest.consider(sibling, seconds - chunkOf(chunk).dend);
  }
  return nearest.sibling();
}

ExpressionRef SegmentList::beginningAfter(double seconds) const {
  Nearest nearest;
  for (const ExpressionRef& sibling : segments_) {
    const auto chunk = sibling->ckGetChunk();
    nearest.consider(sibling, chunkOf(chunk).dStart - seconds);
  }
  return nearest.sibling();
}

void SegmentList::link(ExpressionBase& segment, double dStart, double dend) const {
  const auto before = as<ExpressionBase>(endingBefore(dStart));
  const ExpressionRef after = beginningAfter(dend);
  if (before) {
    before->references().setFollowedBy(segment.strGUID());
    before->setObjFollowedBy(sharedOf(segment));
  }
  if (after) {
    segment.references().setFollowedBy(after->strGUID());
    segment.setObjFollowedBy(after);
  }
}

}  // namespace velra
