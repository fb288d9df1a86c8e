#include "tool/SegmentChain.h"

#include <gtest/gtest.h>

#include <random>

#include "support/ScriptedExpression.h"

namespace velra::test {
namespace {

/// The rules as they read, with a search for every step.
ExpressionRef plainHead(const ExpressionList& children) {
  for (const auto& child : children) {
    bool followed = false;
    for (const auto& other : children) followed = followed || other->objFollowedBy() == child;
    if (!followed) return child;
  }
  return nullptr;
}

ExpressionRef plainPredecessor(const ExpressionList& children, const ExpressionRef& of) {
  for (const auto& child : children) {
    if (child->objFollowedBy() == of) return child;
  }
  return nullptr;
}

ExpressionList randomFamily(std::mt19937& random, std::size_t count) {
  ExpressionList children;
  for (std::size_t i = 0; i < count; ++i) {
    children.push_back(ScriptedExpression::make("Video", 0, 1));
  }
  // Links run from lower to higher members of a shuffled copy, so that no ring comes about, but
  // gaps, several heads and shared followers do.
  ExpressionList order = children;
  std::shuffle(order.begin(), order.end(), random);
  for (std::size_t i = 0; i + 1 < count; ++i) {
    if (random() % 5 == 0) continue;
    const std::size_t step = random() % 6 == 0 ? 2 : 1;
    if (i + step < count) order[i]->setObjFollowedBy(order[i + step]);
  }
  return children;
}

TEST(SegmentChainTest, mapsGiveWhatTheSearchesGive) {
  std::mt19937 random(3);
  for (int round = 0; round < 200; ++round) {
    const ExpressionList children = randomFamily(random, 1 + random() % 12);
    const SegmentChain chain(children);
    ExpressionList forward;
    for (auto at = plainHead(children); at; at = at->objFollowedBy()) forward.push_back(at);
    EXPECT_EQ(chain.forward(), forward);
    ExpressionList backward;
    const auto tail = std::find_if(children.begin(), children.end(),
                                   [](const auto& child) { return !child->objFollowedBy(); });
    for (auto at = tail == children.end() ? nullptr : *tail; at;
         at = plainPredecessor(children, at)) {
      backward.push_back(at);
    }
    EXPECT_EQ(chain.backward(), backward);
    const ChainPositions places(children);
    for (const auto& child : children) {
      const auto at = std::find(forward.begin(), forward.end(), child);
      EXPECT_EQ(places.iChainPosition(child), at == forward.end() ? 0 : at - forward.begin() + 1);
    }
  }
}

TEST(SegmentChainTest, aRingEnds) {
  ExpressionList children{ScriptedExpression::make("Video", 0, 1),
                          ScriptedExpression::make("Video", 1, 2),
                          ScriptedExpression::make("Video", 2, 3)};
  children[0]->setObjFollowedBy(children[1]);
  children[1]->setObjFollowedBy(children[2]);
  children[2]->setObjFollowedBy(children[1]);
  const SegmentChain chain(children);
  EXPECT_EQ(chain.forward().size(), 3u);
  EXPECT_TRUE(chain.backward().empty());
  children[2]->setObjFollowedBy(nullptr);
}

}  // namespace
}  // namespace velra::test
