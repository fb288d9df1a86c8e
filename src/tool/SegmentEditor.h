// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "app/Message.h"
#include "protocol/Expression.h"
#include "tool/SegmentLists.h"
#include "tool/TimeSelection.h"

namespace velra {

class AdvancedSlider;
class ApplicationModule;
class Framelist;
class Player;
class RangeDialog;
class ToolFace;

/// Cuts the timeline of an expression into segments, its children: decides what a button or a click
/// does, and asks. All work goes into objects in memory. Times are seconds.
class SegmentEditor {
 public:
  struct Parts {
    ApplicationModule& app;
    Player& player;
    AdvancedSlider& advsld;
    Framelist& Framelist1;
    RangeDialog& dialog;
    ToolFace& face;
  };

  SegmentEditor(const ExpressionRef& obj, Parts parts);

  /// Fills timeline and strip; without a movie the timeline is disabled and stays empty.
  void LoadSegments();

  // The buttons.
  void SelectSegmentPoint();
  void NewSegmentByDialog();
  void ModifySelectedSegment();
  void ConfirmRemoveSegments();
  /// Bounds that come out reversed are refused before anything goes.
  void MergeSelectedSegments();
  void MoveToPreviousBound();
  void MoveToNextBound();
  void ExtendPreviousSegment();
  void ExtendNextSegment();
  /// Changes the key frame of the expression itself. kNoObject without a movie.
  void ChangeKeyFrame();

  /// Nothing but a beep, and a sentence to be heard, while no first point waits.
  void SelectSecondPoint();
  /// Ends a half-made selection, as Esc does.
  void CancelSelection();
  void BlinkerTimer() { selection_.tick(); }

  // Clicks on timeline and strip keep the two in step and jump to the segment.
  void timelineClicked(std::int16_t index);
  void stripClicked(std::int16_t position);
  void timelineScrolled();

  /// The child at a list position from 1; kSubscriptOutOfRange for none.
  ExpressionRef child(std::int16_t position) const { return lists_.child(position); }

 private:
  void setTimelineSpan();
  void tell(Message message);
  void announce(Message what, const std::string& which = {});
  void beginSelection(double position);
  void endSelection(double position);
  bool CreateSegment(double start, double end);
  void addSegment(const std::string& title, double start, double end, Message done);
  void changeBounds(const ExpressionRef& segment, double start, double end);
  bool askBounds(double& start, double& end);
  void seekTo(double seconds);
  void goTo(double seconds);
  void seekToChild(std::int16_t position);
  void resetTree();

  ExpressionRef obj_;
  Parts parts_;
  SegmentLists lists_;
  TimeSelection selection_;
};

}  // namespace velra
