// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentEditor.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/MainWindow.h"
#include "tool/AdvancedSlider.h"
#include "tool/Framelist.h"
#include "tool/Player.h"
#include "tool/RangeDialog.h"
#include "tool/SegmentChain.h"
#include "tool/SegmentSpans.h"
#include "tool/ToolFace.h"

namespace velra {

namespace {

constexpr double kPagesOfTheTimeline = 100;

}  // namespace

SegmentEditor::SegmentEditor(ExpressionRef obj, Parts parts)
    : obj_(std::move(obj)), parts_(parts) {}

bool SegmentEditor::isVideo() const {
  return obj_->className() == "Video";
}

void SegmentEditor::tell(Message message) {
  parts_.app.ui.messageBox(parts_.app.LoadResString(message));
}

bool SegmentEditor::hasSelection() const {
  return parts_.advsld.iRangeSelectedStart() != -1;
}

ExpressionRef SegmentEditor::child(std::int16_t position) const {
  const ExpressionList& children = obj_->colSubExpressions();
  if (position < 1 || static_cast<std::size_t>(position) > children.size()) {
    raise(kSubscriptOutOfRange);
  }
  return children[static_cast<std::size_t>(position) - 1];
}

std::string SegmentEditor::caption(const std::string& title, double start, double end) const {
  return "'" + title + "': From " + parts_.player.TimeToText(start) + " To " +
         parts_.player.TimeToText(end);
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
  parts_.app.ui.messageBox("This segment has no length: nothing can be cut on its timeline.");
  advsld.setDMax(span.dStart + 1);
  advsld.setEnabled(false);
}

void SegmentEditor::LoadSegments() {
  AdvancedSlider& advsld = parts_.advsld;
  if (!parts_.player.hasMovie()) return advsld.setEnabled(false);
  setTimelineSpan();
  advsld.setDLargeChange((advsld.dMax() - advsld.dMin()) / kPagesOfTheTimeline);
  const ExpressionList& children = obj_->colSubExpressions();
  const ChainPositions places(children);
  for (const ExpressionRef& segment : children) {
    const auto times = spanOf(*segment);
    const std::string text = caption(segment->strTitle(), times->dStart, times->dend);
    advsld.iAddRange(times->dStart, times->dend, text);
    if (segment->className() == "Video") {
      parts_.Framelist1.iAddImage(segment->picKeyFrame(), places.iChainPosition(segment), text);
    }
  }
}

void SegmentEditor::CreateSegment(double start, double end) {
  const std::string title =
      parts_.app.ui.inputBox(parts_.app.LoadResString(Message::SegmentTitlePrompt),
                             parts_.app.LoadResString(Message::SegmentTitle));
  if (!title.empty()) addSegment(title, start, end);
}

void SegmentEditor::addSegment(const std::string& title, double start, double end) {
  const std::string text = caption(title, start, end);
  const std::int16_t position = parts_.advsld.iAddRange(start, end, text);
  const std::size_t before = obj_->colSubExpressions().size();
  obj_->AddSubExpression(title, start, end);
  const bool made = obj_->colSubExpressions().size() > before;
  if (!made && position > 0) {
    // Its message has been shown; a range without a segment would put the lists out of step.
    parts_.advsld.takeBackLastRange();
  } else if (made && isVideo()) {
    addPicture(position, text);
  }
  showSelection();
  resetTree();
}

void SegmentEditor::addPicture(std::int16_t position, const std::string& segmentCaption) {
  const ExpressionRef segment = child(position);
  const ChainPositions places(obj_->colSubExpressions());
  parts_.Framelist1.iAddImage(segment->picKeyFrame(), places.iChainPosition(segment),
                              segmentCaption);
  if (parts_.app.gMainForm) parts_.app.gMainForm->AddSmallKeyFrame(*segment);
}

bool SegmentEditor::askBounds(double start, double end) {
  parts_.dialog.SetTime(start, end, parts_.player.dFrameRate());
  parts_.face.showRangeDialog(parts_.dialog);
  return !parts_.dialog.bCancel();
}

void SegmentEditor::NewSegmentByDialog() {
  if (!parts_.player.hasMovie()) return;
  const double position = parts_.player.CurrentPosition();
  if (!askBounds(position, position)) return;
  const double start = parts_.dialog.dGetStartTime();
  const double end = parts_.player.withinMovie(parts_.dialog.dGetEndTime());
  if (end < start) return tell(Message::NotValidInterval);
  if (!bBoundsAreFree(obj_->colSubExpressions(), start, end))
    return tell(Message::IntervalOverlaps);
  CreateSegment(start, end);
}

void SegmentEditor::ModifySelectedSegment() {
  if (!parts_.player.hasMovie() || !hasSelection()) return;
  const std::int16_t position = parts_.advsld.iRangeSelectedStart();
  const ExpressionRef segment = child(position);
  const auto span = spanOf(*segment);
  if (!askBounds(span->dStart, span->dend)) return;
  const double start = parts_.dialog.dGetStartTime();
  const double end = parts_.player.withinMovie(parts_.dialog.dGetEndTime());
  if (end < start) return tell(Message::NotValidInterval);
  setBounds(segment, position, start, end);
}

void SegmentEditor::setBounds(const ExpressionRef& segment, std::int16_t position, double start,
                              double end) {
  segment->SetChunk(start, end);
  parts_.advsld.UpdateRange(position, start, end);
}

void SegmentEditor::ChangeKeyFrame() {
  if (!isVideo()) return;
  if (!parts_.app.ui.askYesNo(parts_.app.LoadResString(Message::AskUpdateKeyFrame))) return;
  obj_->SetKeyFrameTime(parts_.player.CurrentPosition());
  if (parts_.app.gMainForm) parts_.app.gMainForm->UpdateSmallKeyFrames();
  tell(Message::KeyFrameUpdated);
}

}  // namespace velra
