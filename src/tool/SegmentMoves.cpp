// SPDX-License-Identifier: GPL-3.0-or-later

// The segment editor's two-press selection, its walks along the chain, and its clicks.
#include "tool/SegmentEditor.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "tool/AdvancedSlider.h"
#include "tool/Framelist.h"
#include "tool/Player.h"
#include "tool/SegmentChain.h"
#include "tool/SegmentSpans.h"
#include "tool/ToolFace.h"

namespace velra {

namespace {}  // namespace

void SegmentEditor::SelectSegmentPoint() {
  if (!parts_.player.hasMovie()) return;
  if (bSelecting_) {
    endSelection();
  } else {
    beginSelection();
  }
}

void SegmentEditor::beginSelection() {
  dSelStart_ = parts_.player.CurrentPosition();
  if (!bPointIsFree(obj_->colSubExpressions(), dSelStart_))
    return tell(Message::StartInsideSegment);
  bSelecting_ = true;
  parts_.face.runBlinkerTimer(true);
  parts_.advsld.PutBlinkLine(dSelStart_);
}

void SegmentEditor::endSelection() {
  bSelecting_ = false;
  stopBlinking();
  dSelEnd_ = parts_.player.CurrentPosition();
  parts_.advsld.RemoveBlinkLine();
  const ExpressionList& children = obj_->colSubExpressions();
  if (!bPointIsFree(children, dSelEnd_)) return tell(Message::EndInsideSegment);
  // Tested in the order of the presses: backward, nothing can lie between the points.
  if (!bIntervalHoldsNoSegment(children, dSelStart_, dSelEnd_))
    return tell(Message::IntervalHoldsSegments);
  CreateSegment(std::min(dSelStart_, dSelEnd_), std::max(dSelStart_, dSelEnd_));
}

void SegmentEditor::CancelSelection() {
  if (!bSelecting_) return;
  bSelecting_ = false;
  stopBlinking();
  parts_.advsld.RemoveBlinkLine();
}

void SegmentEditor::stopBlinking() {
  parts_.face.runBlinkerTimer(false);
  if (!bBlinkOn_) return;
  bBlinkOn_ = false;
  parts_.face.swapTimeCodeColours(false);
}

void SegmentEditor::BlinkerTimer() {
  if (!bSelecting_) return;
  bBlinkOn_ = !bBlinkOn_;
  parts_.face.swapTimeCodeColours(bBlinkOn_);
}

void SegmentEditor::ExtendPreviousSegment() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  const SegmentChain chain(obj_->colSubExpressions());
  for (const ExpressionRef& segment : chain.backward()) {
    const auto span = spanOf(*segment);
    if (span->dend > position) continue;
    if (span->dend == position) return;
    return setBounds(segment, chain.listPosition(segment), span->dStart, position);
  }
}

void SegmentEditor::ExtendNextSegment() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  const SegmentChain chain(obj_->colSubExpressions());
  for (const ExpressionRef& segment : chain.forward()) {
    const auto span = spanOf(*segment);
    if (span->dStart < position) continue;
    if (span->dStart == position) return;
    return setBounds(segment, chain.listPosition(segment), position, span->dend);
  }
}

void SegmentEditor::MoveToNextBound() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  for (const ExpressionRef& segment : SegmentChain(obj_->colSubExpressions()).forward()) {
    const auto span = spanOf(*segment);
    for (const double bound : {span->dStart, span->dend}) {
      if (bound > position) return parts_.player.SeekTo(parts_.player.withinMovie(bound));
    }
  }
}

void SegmentEditor::MoveToPreviousBound() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  for (const ExpressionRef& segment : SegmentChain(obj_->colSubExpressions()).backward()) {
    const auto span = spanOf(*segment);
    for (const double bound : {span->dend, span->dStart}) {
      if (bound < position) return parts_.player.SeekTo(parts_.player.withinMovie(bound));
    }
  }
}

void SegmentEditor::seekToChild(std::int16_t position) {
  if (!parts_.player.hasMovie()) return;
  parts_.advsld.setDPosition(spanOf(*child(position))->dStart);
  timelineScrolled();
}

void SegmentEditor::timelineClicked(std::int16_t index) {
  seekToChild(index);
  copySelectionToStrip();
}

void SegmentEditor::stripClicked(std::int16_t position) {
  seekToChild(position);
  parts_.advsld.setIRangeSelectedStart(parts_.Framelist1.iSelectedStart());
  parts_.advsld.setIRangeSelectedEnd(parts_.Framelist1.iSelectedEnd());
}

void SegmentEditor::timelineScrolled() {
  if (!parts_.player.hasMovie()) return;
  // A span may reach further than its movie.
  parts_.player.SeekTo(parts_.player.withinMovie(parts_.advsld.dPosition()));
}

}  // namespace velra
