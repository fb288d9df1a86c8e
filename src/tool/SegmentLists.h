// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "protocol/Expression.h"

namespace velra {

class AdvancedSlider;
class ApplicationModule;
class Framelist;
class Player;

/// The segments of an expression in the three lists in which they stand side by side: the children,
/// the ranges of the timeline and, for a Video, the pictures of the strip. Position k, from 1,
/// means the same segment in all, and every change here is made in all. What is selected is what
/// the timeline selects; the strip shows it too. Times are seconds.
class SegmentLists {
 public:
  struct Parts {
    ApplicationModule& app;
    const Player& player;  // says how a time is written
    AdvancedSlider& advsld;
    Framelist& Framelist1;
  };

  SegmentLists(ExpressionRef obj, Parts parts);

  /// Gives the timeline and the strip the children that are there at the opening.
  void fill();

  const ExpressionList& children() const { return obj_->colSubExpressions(); }
  /// kSubscriptOutOfRange for a position that no child has.
  ExpressionRef child(std::int16_t position) const;

  /// What tool tips say of a segment.
  std::string caption(const std::string& title, double start, double end) const;

  /// Makes a segment at the end of all lists. One that cannot be made has told why, and leaves no
  /// range behind: false. The selection keeps its numbers, which may now stand for more.
  bool add(const std::string& title, double start, double end);
  /// The caption stays as it was made.
  void setBounds(const ExpressionRef& segment, double start, double end);
  /// Removes the selected segments from all lists. The selection keeps its numbers, so that those
  /// who removed have to call `showSelection`.
  void removeSelected();

  bool hasSelection() const;
  /// The segments at the two ends of the selection, in the order of the list; only with a
  /// selection.
  ExpressionRef firstSelected() const;
  ExpressionRef lastSelected() const;
  /// The segment that was clicked first.
  ExpressionRef clickedSegment() const;

  /// Shows what the selection's numbers stand for after a change; numbers past the end select
  /// nothing.
  void showSelection();
  void selectAsTimeline();
  void selectAsStrip();

 private:
  bool isVideo() const;
  void addPicture(std::int16_t position, const std::string& text);
  void removePictures(const std::vector<std::int16_t>& indexes);

  ExpressionRef obj_;
  Parts parts_;
};

}  // namespace velra
