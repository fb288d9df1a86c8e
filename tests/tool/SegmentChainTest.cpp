// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentChain.h"

#include <gtest/gtest.h>

#include "support/ScriptedExpression.h"

namespace velra::test {
namespace {

using Links = std::vector<const char*>;

/// Segments "a", "b"... in that order; a link "ab" lets b follow a.
ExpressionList family(std::size_t count, const Links& links) {
  ExpressionList children;
  for (std::size_t i = 0; i < count; ++i) {
    const auto child = ScriptedExpression::make(ObjectKind::Video, 0, 1);
    child->title = std::string(1, static_cast<char>('a' + i));
    children.push_back(child);
  }
  const auto named = [&](char title) { return children.at(static_cast<std::size_t>(title - 'a')); };
  for (const char* link : links) named(link[0])->setObjFollowedBy(named(link[1]));
  return children;
}

std::string titles(const ExpressionList& segments) {
  std::string text;
  for (const ExpressionRef& segment : segments) text += segment->strTitle();
  return text;
}

TEST(SegmentChainTest, RunsFromTheFirstHeadAndBackFromTheFirstTail) {
  const struct {
    std::size_t count;
    Links links;
    std::string forward;
    std::string backward;
  } cases[] = {
      {0, {}, "", ""},
      {1, {}, "a", "a"},
      {3, {}, "a", "a"},
      {3, {"ab", "bc"}, "abc", "cba"},
      {4, {"cb", "ba", "dc"}, "dcba", "abcd"},  // against the order of the list
      {4, {"ab", "cd"}, "ab", "ba"},            // a gap
      {4, {"ba", "cd"}, "ba", "ab"},
      {4, {"ac", "bc", "cd"}, "acd", "dca"},  // a follower of two: the first one counts
      {5, {"bc", "ac", "da", "eb"}, "dac", "cad"},
      {3, {"ab", "bc", "cb"}, "abc", ""},  // a ring behind a head
      {2, {"ab", "ba"}, "", ""},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(&one - cases);
    const ExpressionList children = family(one.count, one.links);
    const SegmentChain chain(children);
    EXPECT_EQ(titles(chain.forward()), one.forward);
    EXPECT_EQ(titles(chain.backward()), one.backward);
    const ChainPositions places(children);
    for (const auto& child : children) {
      const std::size_t at = one.forward.find(child->strTitle());
      EXPECT_EQ(places.iChainPosition(child), at == std::string::npos ? 0 : int(at) + 1);
      child->setObjFollowedBy(nullptr);  // a ring would keep itself alive
    }
  }
}

}  // namespace
}  // namespace velra::test
