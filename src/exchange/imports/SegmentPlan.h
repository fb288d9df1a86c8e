// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "exchange/imports/Proposal.h"
#include "protocol/Expression.h"

namespace velra {

class KeyFramesAhead;

/// Proposed segments beside those that are there: which of them may be made, by the rules by which
/// a person cuts, and then the making of all of these. Nothing is changed before `make`.
///
/// A segment needs a title. It begins inside the expression that it is part of; one that ends
/// behind it is cut there. Its bounds lie in no other segment, and none lies between them.
class SegmentPlan {
 public:
  /// Proposes a segment for an expression, or for a part of it by its level. Levels count on from
  /// the rows that were proposed before.
  void propose(const ProposedSegment& row, const ExpressionRef& into);

  /// Makes those that may be. Why one could not has been shown, and told among the refused.
  /// `progress`, if any, is told the share that is made.
  void make(const std::function<void(double)>& progress);

  std::size_t count() const { return planned_; }
  const std::vector<RowNote>& refused() const { return refused_; }
  /// What else is to be told: ends that were moved.
  const std::vector<RowNote>& notes() const { return notes_; }

 private:
  struct Span {
    double start;
    double end;
  };
  // An expression that is there, or one that will be made.
  struct Place {
    ExpressionRef expression;
    std::vector<Span> children;
    Place* parent = nullptr;
    Span bounds{0, 0};
    bool bounded = false;
    ProposedSegment row;  // of one that will be made
  };

  Place& placeOf(const ExpressionRef& expression);
  Place* parentFor(const ProposedSegment& row, const ExpressionRef& into);
  static Message faultOf(const Place& parent, const ProposedSegment& row);
  bool checkFields(const ProposedSegment& row, const ExpressionRef& into);
  void cut(const Place& parent, ProposedSegment& row);
  std::vector<Place*> inOrder();
  static std::shared_ptr<KeyFramesAhead> keyFramesAhead(const std::vector<Place*>& planned);
  bool makeOne(Place& place);
  static void fillIn(Expression& segment, const ProposedSegment& row);

  std::deque<Place> places_;
  std::map<const Expression*, std::vector<Place*>> last_;  // by level; null for one refused
  std::vector<RowNote> refused_;
  std::vector<RowNote> notes_;
  std::size_t planned_ = 0;
};

}  // namespace velra
