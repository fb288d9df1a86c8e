// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "values/Range.h"

namespace velra {

/// Where times stand on a timeline. Times are seconds, places and lengths twips. A span of no
/// length raises kDivisionByZero.
struct TimelineScale {
  static constexpr double kMargin = 200;  // between each end of the timeline and its first place

  double dMin = 0;
  double dMax = 1;
  double left = 0;
  double width = 0;

  /// Of the span, 0 at its start and 1 at its end.
  double share(double seconds) const;
  double x(double seconds) const;
  double length(const Range& range) const;
};

/// The two ends of a selection as indexes from 1; -1 means that nothing is selected.
struct RangeSelection {
  std::int16_t start = -1;
  std::int16_t end = -1;

  bool any() const { return start != -1; }
};

/// The ranges of a timeline, each with the mark that is drawn for it. Indexes count from 1 in the
/// order of adding; one that no range has raises kSubscriptOutOfRange. Colours are 0x00bbggrr.
class RangeMarks {
 public:
  static constexpr int kPlainBorder = 4;
  static constexpr int kSelectedBorder = 6;

  /// How one range is drawn: a bracket over its span, its title in it, and the caption as tool tip.
  struct Mark {
    std::string title;
    std::string caption;
    double left = 0;
    double width = 0;
    int borderWidth = kPlainBorder;
    std::int32_t colour = 0;
  };

  std::int16_t Count() const;
  const RangeSet& ranges() const { return ranges_; }
  const std::vector<Mark>& all() const { return marks_; }

  void add(const Range& range, const std::string& caption, std::int32_t colour,
           const TimelineScale& scale);
  void removeLast();
  /// `indexes` rise.
  void remove(const std::vector<std::int16_t>& indexes);
  void setBounds(std::int16_t index, const Range& range);
  void setTitle(std::int16_t index, const std::string& title);

  void placeAll(const TimelineScale& scale);
  void colourAll(std::int32_t colour);
  void colour(std::int16_t index, std::int32_t colour);
  /// Gives those that are selected the thick border; without a selection borders stay.
  void highlight(const RangeSelection& selection);

  /// The indexes of the selected ranges in rising order: those that begin between the beginnings of
  /// the two ends.
  std::vector<std::int16_t> selected(const RangeSelection& selection) const;
  /// The mark at a place, the topmost first; 0 for none. One too narrow to be hit answers over
  /// `slack` twips on both sides.
  std::int16_t at(double x, double slack) const;
  /// The range whose begin comes next in time after (or before) that of `current`; 0 for none. If
  /// `current` is no range, the first (or last).
  std::int16_t neighbour(std::int16_t current, bool forward) const;

 private:
  void place(std::size_t index, const TimelineScale& scale);
  bool isSelected(const Range& range, const RangeSelection& selection) const;

  RangeSet ranges_;
  std::vector<Mark> marks_;  // one for each range, at the same place
};

}  // namespace velra
