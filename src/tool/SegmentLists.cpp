// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentLists.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "protocol/MainWindow.h"
#include "protocol/VideoExpression.h"
#include "tool/AdvancedSlider.h"
#include "tool/Framelist.h"
#include "tool/Player.h"
#include "tool/SegmentChain.h"
#include "tool/SegmentSpans.h"

namespace velra {

SegmentLists::SegmentLists(ExpressionRef obj, Parts parts) : obj_(std::move(obj)), parts_(parts) {}

bool SegmentLists::isVideo() const {
  return obj_->kind() == ObjectKind::Video;
}

ExpressionRef SegmentLists::child(std::int16_t position) const {
  if (position < 1 || static_cast<std::size_t>(position) > children().size()) {
    raise(kSubscriptOutOfRange);
  }
  return children()[static_cast<std::size_t>(position) - 1];
}

std::string SegmentLists::caption(const std::string& title, double start, double end) const {
  return "'" + title + "': From " + parts_.player.TimeToText(start) + " To " +
         parts_.player.TimeToText(end);
}

void SegmentLists::fill() {
  const ChainPositions places(children());
  for (const ExpressionRef& segment : children()) {
    const auto times = spanOf(*segment);
    const std::string text = caption(segment->strTitle(), times->dStart, times->dend);
    const std::int16_t range = parts_.advsld.iAddRange(times->dStart, times->dend, text);
    parts_.advsld.setRangeTitle(range, segment->strTitle());
    if (const auto* video = as<VideoExpression>(segment.get())) {
      parts_.Framelist1.iAddImage(video->picKeyFrame(), places.iChainPosition(segment), text);
    }
  }
}

bool SegmentLists::add(const std::string& title, double start, double end) {
  const std::string text = caption(title, start, end);
  const std::int16_t position = parts_.advsld.iAddRange(start, end, text);
  parts_.advsld.setRangeTitle(position, title);
  const std::size_t before = children().size();
  obj_->AddSubExpression(title, start, end);
  const bool made = children().size() > before;
  if (!made && position > 0) {
    // A range without a segment would put the lists out of step.
    parts_.advsld.takeBackLastRange();
  } else if (made && isVideo()) {
    addPicture(position, text);
  }
  return made;
}

void SegmentLists::addPicture(std::int16_t position, const std::string& text) {
  const ExpressionRef segment = child(position);
  const auto* video = as<VideoExpression>(segment.get());
  if (!video) return;
  const ChainPositions places(children());
  parts_.Framelist1.iAddImage(video->picKeyFrame(), places.iChainPosition(segment), text);
  if (parts_.app.gMainForm) parts_.app.gMainForm->AddSmallKeyFrame(*video);
}

void SegmentLists::setBounds(const ExpressionRef& segment, double start, double end) {
  segment->SetChunk(start, end);
  const auto at = std::find(children().begin(), children().end(), segment);
  const auto position = static_cast<double>(at - children().begin()) + 1;
  parts_.advsld.UpdateRange(toInt16(position), start, end);
}

void SegmentLists::removeSelected() {
  const std::vector<std::int16_t> indexes = parts_.advsld.colSelectedIndexes();
  ExpressionList selected;
  for (const std::int16_t index : indexes) selected.push_back(child(index));
  for (const ExpressionRef& segment : selected) obj_->RemoveSubExpressionByPointer(segment);
  parts_.advsld.RemoveSelectedRanges();
  if (isVideo()) removePictures(indexes);
}

// The timeline selects by time and the strip by place, so that the strip's own selection can be
// another. What goes is what the timeline selects, or the lists would run out of step.
void SegmentLists::removePictures(const std::vector<std::int16_t>& indexes) {
  Framelist& strip = parts_.Framelist1;
  strip.setISelectedStart(indexes.front());  // the one square that is left goes with its picture
  strip.setISelectedStart(-1);
  for (auto index = indexes.rbegin(); index != indexes.rend(); ++index) strip.RemoveImage(*index);
}

bool SegmentLists::hasSelection() const {
  return parts_.advsld.iRangeSelectedStart() != -1;
}

ExpressionRef SegmentLists::clickedSegment() const {
  return child(parts_.advsld.iRangeSelectedStart());
}

ExpressionRef SegmentLists::firstSelected() const {
  return child(std::min(parts_.advsld.iRangeSelectedStart(), parts_.advsld.iRangeSelectedEnd()));
}

ExpressionRef SegmentLists::lastSelected() const {
  return child(std::max(parts_.advsld.iRangeSelectedStart(), parts_.advsld.iRangeSelectedEnd()));
}

// The timeline keeps its numbers when ranges go, and marks nothing anew when one comes. The next
// command acts on them, so what they stand for now has to be seen.
void SegmentLists::showSelection() {
  AdvancedSlider& advsld = parts_.advsld;
  const std::int16_t start = advsld.iRangeSelectedStart();
  const std::int16_t end = advsld.iRangeSelectedEnd();
  if (std::max(start, end) > advsld.Count()) advsld.setIRangeSelectedStart(-1);
  advsld.Refresh();
  selectAsTimeline();
}

void SegmentLists::selectAsTimeline() {
  parts_.Framelist1.setISelectedStart(parts_.advsld.iRangeSelectedStart());
  parts_.Framelist1.setISelectedEnd(parts_.advsld.iRangeSelectedEnd());
}

void SegmentLists::selectAsStrip() {
  parts_.advsld.setIRangeSelectedStart(parts_.Framelist1.iSelectedStart());
  parts_.advsld.setIRangeSelectedEnd(parts_.Framelist1.iSelectedEnd());
}

}  // namespace velra
