// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tool/AdvancedSliderEvents.h"
#include "tool/BlinkLine.h"
#include "tool/RangeMarks.h"
#include "tool/TimelineThumb.h"

namespace velra {

class PropertyBag;

/// The timeline of a movie: a slider for the position, and above it one bracket for each segment.
/// It knows nothing of expressions. Range k belongs to element k of the owner's list. Times are
/// seconds, places and widths twips, colours 0x00bbggrr; indexes count from 1, and -1 means none.
/// A span of no length raises kDivisionByZero wherever a time becomes a place.
class AdvancedSlider {
 public:
  using Slider = TimelineThumb;
  using Mark = RangeMarks::Mark;
  static constexpr int kSelectedBorder = RangeMarks::kSelectedBorder;
  static constexpr int kShiftArgument = 1;  // Shift alone, in the argument of the mouse

  AdvancedSliderEvents events;

  // Properties.
  std::int32_t RangeColor() const { return RangeColor_; }
  void setRangeColor(std::int32_t colour);
  std::int32_t StartRangeColor() const { return StartRangeColor_; }
  void setStartRangeColor(std::int32_t colour);
  double dMin() const { return dMin_; }
  void setDMin(double seconds);
  double dMax() const { return dMax_; }
  void setDMax(double seconds);
  double dPosition() const { return dPosition_; }
  /// Clamps to the span and moves the thumb; raises no event.
  void setDPosition(double seconds);
  double dLargeChange() const { return dLargeChange_; }
  void setDLargeChange(double seconds);
  bool Enabled() const { return Slider1_.enabled; }
  void setEnabled(bool enabled);
  std::int16_t iRangeSelectedStart() const { return selection_.start; }
  void setIRangeSelectedStart(std::int16_t index);
  std::int16_t iRangeSelectedEnd() const { return selection_.end; }
  void setIRangeSelectedEnd(std::int16_t index);

  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag) const;

  // Ranges.
  /// Index of the new range; 0 when it ends before it begins. A range that begins before the span
  /// shrinks to its end, one that ends behind it is cut.
  std::int16_t iAddRange(double dBegin, double dend, const std::string& caption);
  /// What stands in a range where it fits; a bad index is ignored.
  void setRangeTitle(std::int16_t index, const std::string& title) {
    if (index >= 1 && index <= Count()) marks_.setTitle(index, title);
  }
  /// Leaves the selection's numbers as they are and redraws nothing: the owner does.
  void RemoveSelectedRanges();
  /// Takes back the range added last, whose segment could not be made.
  void takeBackLastRange();
  /// A bad index is ignored; the bounds are not clamped.
  void UpdateRange(std::int16_t index, double dBegin, double dend);
  /// The indexes of the selected ranges in rising order. A selection index that no range has any
  /// more raises kSubscriptOutOfRange.
  std::vector<std::int16_t> colSelectedIndexes() const { return marks_.selected(selection_); }
  std::int16_t Count() const { return marks_.Count(); }
  const RangeSet& colRanges() const { return marks_.ranges(); }

  // The blink line.
  void PutBlinkLine(double seconds);
  void RemoveBlinkLine();
  void BlinkTick();

  /// Lays everything out anew.
  void Refresh();
  void Resize(double widthTwips);

  // The mouse and the keyboard.
  void MouseDown(std::int16_t index, int shift);
  void DoubleClick(std::int16_t index);
  void UserMovesThumb(std::int32_t value);
  /// The thumb's own steps are shares of the span; what one picture is, only the owner knows.
  void UserSteps(bool forward);

  // For the face.
  const Slider& slider() const { return Slider1_; }
  const std::vector<Mark>& marks() const { return marks_.all(); }
  const BlinkLine& blinkLine() const { return BlinkLine_; }
  /// The range drawn at a place, the topmost first; 0 for none. A mark too narrow to be hit answers
  /// over `slack` twips on both sides.
  std::int16_t iRangeAt(double x, double slack) const { return marks_.at(x, slack); }
  /// The range whose begin comes next in time after (or before) the one at the selection's end; 0
  /// for none. Without a selection the first (or last).
  std::int16_t iNeighbour(bool forward) const { return marks_.neighbour(selection_.end, forward); }

 private:
  TimelineScale scale() const { return {dMin_, dMax_, Slider1_.left, Slider1_.width}; }
  void colour();

  std::int32_t RangeColor_ = 0xFFFFFF;
  std::int32_t StartRangeColor_ = 0xFFFFFF;
  double dMin_ = 0;
  double dMax_ = 1;
  double dPosition_ = 0;
  double dLargeChange_ = 0;
  RangeSelection selection_;
  Slider Slider1_;
  BlinkLine BlinkLine_;
  RangeMarks marks_;
};

}  // namespace velra
