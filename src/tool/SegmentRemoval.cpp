// SPDX-License-Identifier: GPL-3.0-or-later

// The segment editor's removals and merges, and what is selected after them.
#include "tool/SegmentEditor.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "tool/AdvancedSlider.h"
#include "tool/Framelist.h"
#include "tool/SegmentSpans.h"

namespace velra {

namespace {}  // namespace

void SegmentEditor::ConfirmRemoveSegments() {
  if (!hasSelection()) return;
  if (!parts_.app.ui.askYesNo(parts_.app.LoadResString(Message::AskRemoveSegments))) return;
  RemoveSelectedSegments();
  showSelection();
  resetTree();
}

void SegmentEditor::RemoveSelectedSegments() {
  if (!hasSelection()) return;
  const std::vector<std::int16_t> indexes = parts_.advsld.colSelectedIndexes();
  ExpressionList selected;
  for (const std::int16_t index : indexes) selected.push_back(child(index));
  for (const ExpressionRef& segment : selected) obj_->RemoveSubExpressionByPointer(segment);
  parts_.advsld.RemoveSelectedRanges();
  if (isVideo()) removePictures(indexes);
}

// The timeline selects by time and the strip by place, so that the strip's own selection can be
// another. What goes is what the timeline selects, or the lists would run out of step.
void SegmentEditor::removePictures(const std::vector<std::int16_t>& indexes) {
  Framelist& strip = parts_.Framelist1;
  strip.setISelectedStart(indexes.front());  // the one square that is left goes with its picture
  strip.setISelectedStart(-1);
  for (auto index = indexes.rbegin(); index != indexes.rend(); ++index) strip.RemoveImage(*index);
}

// The timeline keeps its numbers when ranges go, and marks nothing anew when one comes. The next
// command acts on them, so what they stand for now has to be seen.
void SegmentEditor::showSelection() {
  AdvancedSlider& advsld = parts_.advsld;
  const std::int16_t start = advsld.iRangeSelectedStart();
  const std::int16_t end = advsld.iRangeSelectedEnd();
  if (std::max(start, end) > advsld.Count()) advsld.setIRangeSelectedStart(-1);
  advsld.Refresh();
  copySelectionToStrip();
}

void SegmentEditor::MergeSelectedSegments() {
  if (!hasSelection()) return;
  if (!parts_.app.ui.askYesNo(parts_.app.LoadResString(Message::AskMergeSegments))) return;
  const std::int16_t a = parts_.advsld.iRangeSelectedStart();
  const std::int16_t b = parts_.advsld.iRangeSelectedEnd();
  // Positions in the list decide here, not times, so that the bounds can come out reversed.
  const double start = spanOf(*child(a < b ? a : b))->dStart;
  const double end = spanOf(*child(a < b ? b : a))->dend;
  if (end < start) return tell(Message::NotValidInterval);
  const std::string title = child(a)->strTitle();
  RemoveSelectedSegments();
  addSegment(title, start, end);
}

void SegmentEditor::copySelectionToStrip() {
  parts_.Framelist1.setISelectedStart(parts_.advsld.iRangeSelectedStart());
  parts_.Framelist1.setISelectedEnd(parts_.advsld.iRangeSelectedEnd());
}

}  // namespace velra
