// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentEditor.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "protocol/MainWindow.h"
#include "protocol/VideoExpression.h"
#include "tool/AdvancedSlider.h"
#include "tool/Framelist.h"
#include "tool/Player.h"
#include "tool/RangeDialog.h"
#include "tool/SegmentSpans.h"
#include "tool/ToolFace.h"

namespace velra {

namespace {

constexpr double kPagesOfTheTimeline = 100;

}  // namespace

SegmentEditor::SegmentEditor(const ExpressionRef& obj, Parts parts)
    : obj_(obj),
      parts_(parts),
      lists_(obj, {parts.app, parts.player, parts.advsld, parts.Framelist1}),
      selection_(parts.advsld, parts.face) {}

void SegmentEditor::tell(Message message) {
  parts_.app.ui.messageBox(parts_.app.LoadResString(message));
}

void SegmentEditor::announce(Message what, const std::string& which) {
  parts_.face.announce(parts_.app.LoadResString(what) + which);
}

void SegmentEditor::resetTree() {
  if (parts_.app.gMainForm) {
    parts_.app.gMainForm->ResetTree(TreeId::tvwExpression, obj_->verVersion());
  }
}

void SegmentEditor::setTimelineSpan() {
  AdvancedSlider& advsld = parts_.advsld;
  const Chunk& span = parts_.player.ckChunk();
  advsld.setDMin(span.dStart);
  advsld.setDMax(span.dend);
  if (span.dend != span.dStart) return;
  // A timeline of no length has no places: one in which nothing can be reached stands for it.
  tell(Message::SegmentWithoutLength);
  advsld.setDMax(span.dStart + 1);
  advsld.setEnabled(false);
}

void SegmentEditor::LoadSegments() {
  AdvancedSlider& advsld = parts_.advsld;
  if (!parts_.player.hasMovie()) return advsld.setEnabled(false);
  setTimelineSpan();
  advsld.setDLargeChange((advsld.dMax() - advsld.dMin()) / kPagesOfTheTimeline);
  lists_.fill();
}

void SegmentEditor::SelectSegmentPoint() {
  if (!parts_.player.hasMovie()) return;
  if (selection_.waits()) {
    endSelection(parts_.player.CurrentPosition());
  } else {
    beginSelection(parts_.player.CurrentPosition());
  }
}

void SegmentEditor::SelectSecondPoint() {
  if (selection_.waits()) return SelectSegmentPoint();
  parts_.app.ui.beep();
  announce(Message::NoFirstPoint);
}

void SegmentEditor::beginSelection(double position) {
  if (!bPointIsFree(lists_.children(), position)) return tell(Message::StartInsideSegment);
  selection_.begin(position);
  announce(Message::FirstPointTaken, parts_.player.TimeToText(position));
}

void SegmentEditor::CancelSelection() {
  if (!selection_.waits()) return;
  selection_.end();
  announce(Message::FirstPointGivenUp);
}

void SegmentEditor::endSelection(double position) {
  selection_.end();
  const double start = selection_.start();
  if (!bPointIsFree(lists_.children(), position)) return tell(Message::EndInsideSegment);
  // Tested in the order of the presses: backward, nothing can lie between the points.
  if (!bIntervalHoldsNoSegment(lists_.children(), start, position)) {
    return tell(Message::IntervalHoldsSegments);
  }
  if (!CreateSegment(std::min(start, position), std::max(start, position))) {
    announce(Message::FirstPointGivenUp);
  }
}

// False when the person gives no title.
bool SegmentEditor::CreateSegment(double start, double end) {
  const std::string title =
      parts_.app.ui.inputBox(parts_.app.LoadResString(Message::SegmentTitlePrompt),
                             parts_.app.LoadResString(Message::SegmentTitle));
  if (!title.empty()) addSegment(title, start, end, Message::SegmentMade);
  return !title.empty();
}

void SegmentEditor::addSegment(const std::string& title, double start, double end, Message done) {
  const bool made = lists_.add(title, start, end);
  lists_.showSelection();
  resetTree();
  if (made) announce(done, lists_.caption(title, start, end));
}

void SegmentEditor::changeBounds(const ExpressionRef& segment, double start, double end) {
  lists_.setBounds(segment, start, end);
  announce(Message::SegmentChanged, lists_.caption(segment->strTitle(), start, end));
}

// Gives the bounds that were typed; false when the person cancels, or has been told why not.
bool SegmentEditor::askBounds(double& start, double& end) {
  parts_.dialog.SetTime(start, end, parts_.player.dFrameRate());
  parts_.face.showRangeDialog(parts_.dialog);
  if (parts_.dialog.bCancel()) return false;
  start = parts_.dialog.dGetStartTime();
  end = parts_.player.withinMovie(parts_.dialog.dGetEndTime());
  if (end < start) tell(Message::NotValidInterval);
  return end >= start;
}

void SegmentEditor::NewSegmentByDialog() {
  if (!parts_.player.hasMovie()) return;
  double start = parts_.player.CurrentPosition();
  double end = start;
  if (!askBounds(start, end)) return;
  if (!bBoundsAreFree(lists_.children(), start, end)) return tell(Message::IntervalOverlaps);
  CreateSegment(start, end);
}

void SegmentEditor::ModifySelectedSegment() {
  if (!parts_.player.hasMovie() || !lists_.hasSelection()) return;
  const ExpressionRef segment = lists_.clickedSegment();
  Chunk bounds = *spanOf(*segment);
  if (askBounds(bounds.dStart, bounds.dend)) {
    changeBounds(segment, bounds.dStart, bounds.dend);
  }
}

void SegmentEditor::ConfirmRemoveSegments() {
  if (!lists_.hasSelection()) return;
  if (!parts_.app.ui.askYesNo(parts_.app.LoadResString(Message::AskRemoveSegments))) return;
  const std::size_t before = lists_.children().size();
  lists_.removeSelected();
  lists_.showSelection();
  resetTree();
  announce(Message::SegmentsRemoved, std::to_string(before - lists_.children().size()));
}

void SegmentEditor::MergeSelectedSegments() {
  if (!lists_.hasSelection()) return;
  if (!parts_.app.ui.askYesNo(parts_.app.LoadResString(Message::AskMergeSegments))) return;
  // Positions in the list decide here, not times, so that the bounds can come out reversed.
  const double start = spanOf(*lists_.firstSelected())->dStart;
  const double end = spanOf(*lists_.lastSelected())->dend;
  if (end < start) return tell(Message::NotValidInterval);
  const std::string title = lists_.clickedSegment()->strTitle();
  lists_.removeSelected();
  addSegment(title, start, end, Message::SegmentsMerged);
}

void SegmentEditor::ExtendPreviousSegment() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  const ExpressionRef segment = segmentEndingBy(lists_.children(), position);
  if (!segment || spanOf(*segment)->dend == position) return;
  changeBounds(segment, spanOf(*segment)->dStart, position);
}

void SegmentEditor::ExtendNextSegment() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  const ExpressionRef segment = segmentStartingFrom(lists_.children(), position);
  if (!segment || spanOf(*segment)->dStart == position) return;
  changeBounds(segment, position, spanOf(*segment)->dend);
}

void SegmentEditor::MoveToNextBound() {
  if (!parts_.player.hasMovie()) return;
  const auto bound = boundAfter(lists_.children(), parts_.player.CurrentPosition());
  if (bound) goTo(*bound);
}

void SegmentEditor::MoveToPreviousBound() {
  if (!parts_.player.hasMovie()) return;
  const auto bound = boundBefore(lists_.children(), parts_.player.CurrentPosition());
  if (bound) goTo(*bound);
}

// A span may reach further than its movie.
void SegmentEditor::seekTo(double seconds) {
  parts_.player.SeekTo(parts_.player.withinMovie(seconds));
}

void SegmentEditor::goTo(double seconds) {
  seekTo(seconds);
  parts_.player.announcePosition();
}

void SegmentEditor::seekToChild(std::int16_t position) {
  if (!parts_.player.hasMovie()) return;
  parts_.advsld.setDPosition(spanOf(*child(position))->dStart);
  timelineScrolled();
}

void SegmentEditor::timelineClicked(std::int16_t index) {
  seekToChild(index);
  lists_.selectAsTimeline();
}

void SegmentEditor::stripClicked(std::int16_t position) {
  seekToChild(position);
  lists_.selectAsStrip();
}

void SegmentEditor::timelineScrolled() {
  if (parts_.player.hasMovie()) seekTo(parts_.advsld.dPosition());
}

void SegmentEditor::ChangeKeyFrame() {
  auto* video = as<VideoExpression>(obj_.get());
  if (!video) return;
  if (!parts_.app.ui.askYesNo(parts_.app.LoadResString(Message::AskUpdateKeyFrame))) return;
  video->SetKeyFrameTime(parts_.player.CurrentPosition());
  if (parts_.app.gMainForm) parts_.app.gMainForm->UpdateSmallKeyFrames();
  tell(Message::KeyFrameUpdated);
}

}  // namespace velra
