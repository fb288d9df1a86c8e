// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/Message.h"
#include "protocol/Expression.h"

namespace velra {

class AdvancedSlider;
class ApplicationModule;
class Framelist;
class Player;
class RangeDialog;
class ToolFace;

/// Cuts the timeline of an expression into segments, its children. Three lists run side by side:
/// the children, the ranges of the timeline and, for a Video, the pictures of the strip; position k
/// means the same segment in all. All work goes into objects in memory. Times are seconds.
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

  SegmentEditor(ExpressionRef obj, Parts parts);

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

  /// Ends a half-made selection, as Esc does.
  void CancelSelection();
  void BlinkerTimer();
  bool bSelecting() const { return bSelecting_; }

  // Clicks on timeline and strip keep the two in step and jump to the segment.
  void timelineClicked(std::int16_t index);
  void stripClicked(std::int16_t position);
  void timelineScrolled();

  /// The child at a list position from 1; kSubscriptOutOfRange for none.
  ExpressionRef child(std::int16_t position) const;

 private:
  void setTimelineSpan();
  bool isVideo() const;
  std::string caption(const std::string& title, double start, double end) const;
  void tell(Message message);
  bool hasSelection() const;
  void beginSelection();
  void endSelection();
  void stopBlinking();
  void CreateSegment(double start, double end);
  void addSegment(const std::string& title, double start, double end);
  void addPicture(std::int16_t position, const std::string& segmentCaption);
  void RemoveSelectedSegments();
  void removePictures(const std::vector<std::int16_t>& indexes);
  void showSelection();
  void copySelectionToStrip();
  bool askBounds(double start, double end);
  void setBounds(const ExpressionRef& segment, std::int16_t position, double start, double end);
  void seekToChild(std::int16_t position);
  void resetTree();

  ExpressionRef obj_;
  Parts parts_;
  bool bSelecting_ = false;
  bool bBlinkOn_ = false;
  double dSelStart_ = 0;
  double dSelEnd_ = 0;
};

}  // namespace velra
