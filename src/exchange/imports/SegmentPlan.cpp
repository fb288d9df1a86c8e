// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/SegmentPlan.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <tuple>
#include <utility>

#include "base/Text.h"
#include "exchange/imports/FieldTexts.h"
#include "expressions/KeyFramesAhead.h"
#include "expressions/Transcript.h"
#include "expressions/Video.h"
#include "platform/files/Files.h"
#include "protocol/ClassRules.h"
#include "protocol/VideoExpression.h"
#include "schema/SEColl.h"
#include "tool/SegmentSpans.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

// The tool counts the segments of an expression in 16 bits.
constexpr std::size_t kMostSegments = std::numeric_limits<std::int16_t>::max();

}  // namespace

// Bounds that were cut by the picture are compared as files keep them, like those of the rows.
SegmentPlan::Place& SegmentPlan::placeOf(const ExpressionRef& expression) {
  auto& line = last_[expression.get()];
  if (!line.empty()) return *line.front();
  Place& place = places_.emplace_back();
  place.expression = expression;
  if (const auto span = expression->ckGetChunk()) {
    place.bounded = true;
    place.bounds = {inWholeMilliseconds(span->dStart), inWholeMilliseconds(span->dend)};
  }
  for (const ExpressionRef& child : expression->colSubExpressions()) {
    const auto span = spanOf(*child);
    place.children.push_back({inWholeMilliseconds(span->dStart), inWholeMilliseconds(span->dend)});
  }
  line.push_back(&place);
  return place;
}

// Null when the row that it would be part of was refused, or is not there.
SegmentPlan::Place* SegmentPlan::parentFor(const ProposedSegment& row, const ExpressionRef& into) {
  Place& target = placeOf(into);
  const auto& line = last_[into.get()];
  if (row.level <= 1) return &target;
  const auto above = static_cast<std::size_t>(row.level) - 1;
  return above < line.size() ? line[above] : nullptr;
}

Message SegmentPlan::faultOf(const Place& parent, const ProposedSegment& row) {
  if (trimmed(row.title).empty()) return Message::RowWithoutTitle;
  if (parent.children.size() >= kMostSegments) return Message::RowTooMany;
  // What touches the end from behind was cut to nothing.
  const bool behind =
      row.start > parent.bounds.end || (row.start == parent.bounds.end && row.end > row.start);
  if (parent.bounded && (row.start < parent.bounds.start || behind)) return Message::RowOutside;
  if (row.end < row.start) return Message::NotValidInterval;
  for (const auto& [start, end] : parent.children) {
    if (bHoldsPoint(start, end, row.start) || bHoldsPoint(start, end, row.end)) {
      return Message::IntervalOverlaps;
    }
    if (bLiesBetween(start, end, row.start, row.end)) return Message::IntervalHoldsSegments;
  }
  return Message::None;
}

bool SegmentPlan::checkFields(const ProposedSegment& row, const ExpressionRef& into) {
  for (const auto& [name, text] : row.fields) {
    const SchemaElement* field = writableField(into->secol(), rulesOf(into->kind()), name);
    if (!field || trimmed(text).empty() || valueOfText(into->secol(), *field, text)) continue;
    refused_.push_back({row.row, Message::RowFieldUnfit, name + ": " + text});
    return false;
  }
  return true;
}

void SegmentPlan::cut(const Place& parent, ProposedSegment& row) {
  if (!parent.bounded || row.end <= parent.bounds.end || row.start >= parent.bounds.end) return;
  row.end = parent.bounds.end;
  notes_.push_back({row.row, Message::RowCut, {}});
}

void SegmentPlan::propose(const ProposedSegment& row, const ExpressionRef& into) {
  Place* parent = parentFor(row, into);
  auto& line = last_[into.get()];
  const auto level = static_cast<std::size_t>(std::max(row.level, 1));
  line.resize(std::max(line.size(), level + 1), nullptr);
  std::fill(line.begin() + static_cast<std::ptrdiff_t>(level), line.end(), nullptr);
  if (!parent) return refused_.push_back({row.row, Message::RowOfNoOther, {}});
  ProposedSegment wanted = row;
  if (wanted.end >= wanted.start) cut(*parent, wanted);
  const Message fault = faultOf(*parent, wanted);
  if (fault != Message::None) return refused_.push_back({row.row, fault, {}});
  if (!checkFields(row, into)) return;
  parent->children.push_back({wanted.start, wanted.end});
  Place& place = places_.emplace_back();
  place.parent = parent;
  place.bounded = true;
  place.bounds = {wanted.start, wanted.end};
  place.row = std::move(wanted);
  line[level] = &place;
  ++planned_;
}

// A chain that grows in the order of time has each segment behind the one before it.
std::vector<SegmentPlan::Place*> SegmentPlan::inOrder() {
  std::vector<Place*> planned;
  for (Place& place : places_) {
    if (place.parent) planned.push_back(&place);
  }
  std::stable_sort(planned.begin(), planned.end(), [](const Place* a, const Place* b) {
    return std::tie(a->row.level, a->row.start, a->row.end) <
           std::tie(b->row.level, b->row.start, b->row.end);
  });
  return planned;
}

// All Videos that take rows are of one Version, and so of one movie. Null where there are none.
std::shared_ptr<KeyFramesAhead> SegmentPlan::keyFramesAhead(const std::vector<Place*>& planned) {
  std::shared_ptr<Video> main;
  std::vector<double> times;
  for (const Place* place : planned) {
    const Place* top = place;
    while (top->parent) top = top->parent;
    const auto video = as<Video>(top->expression);
    if (!video) continue;
    main = video;
    Chunk span;
    span.dStart = place->bounds.start;
    span.dend = place->bounds.end;
    times.push_back(middleOf(span));
  }
  if (!main || !bFileExists(main->strGetMediaObjectPath())) return nullptr;
  auto ahead = std::make_shared<KeyFramesAhead>(main->strGetMediaObjectPath(), std::move(times));
  main->expectSegments(ahead);
  return ahead;
}

void SegmentPlan::make(const std::function<void(double)>& progress) {
  const std::vector<Place*> planned = inOrder();
  const auto ahead = keyFramesAhead(planned);
  double done = 0;
  for (Place* place : planned) {
    if (progress) progress(done++ / static_cast<double>(planned.size()));
    if (makeOne(*place)) continue;
    refused_.push_back({place->row.row, Message::RowNotMade, {}});
    --planned_;
  }
}

bool SegmentPlan::makeOne(Place& place) {
  const ExpressionRef& parent = place.parent->expression;
  if (!parent) return false;
  // Segments take their words from a list, if only an empty one.
  const auto transcript = as<Transcript>(parent);
  if (transcript && !transcript->WordList()) {
    transcript->setWordList(std::make_shared<WordColl>());
  }
  const std::size_t before = parent->colSubExpressions().size();
  parent->AddSubExpression(place.row.title, place.row.start, place.row.end);
  if (parent->colSubExpressions().size() == before) return false;
  place.expression = parent->colSubExpressions().back();
  fillIn(*place.expression, place.row);
  return true;
}

void SegmentPlan::fillIn(Expression& segment, const ProposedSegment& row) {
  for (const auto& [name, text] : row.fields) {
    SchemaElement* field = writableField(segment.secol(), rulesOf(segment.kind()), name);
    if (!field || trimmed(text).empty()) continue;
    if (auto value = valueOfText(segment.secol(), *field, text)) field->assign(std::move(*value));
  }
  auto* video = as<VideoExpression>(&segment);
  if (video && row.keyFrame) video->SetKeyFrameTime(*row.keyFrame);
}

}  // namespace velra
