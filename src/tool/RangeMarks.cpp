// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/RangeMarks.h"

#include <algorithm>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"

namespace velra {

double TimelineScale::share(double seconds) const {
  if (dMax == dMin) raise(kDivisionByZero);
  return (seconds - dMin) / (dMax - dMin);
}

double TimelineScale::x(double seconds) const {
  const std::int16_t first = toInt16(left + kMargin);
  return first + share(seconds) * toInt16(width - 2 * kMargin);
}

double TimelineScale::length(const Range& range) const {
  return (range.dend - range.dBegin) / (dMax - dMin) * toInt16(width - 2 * kMargin);
}

std::int16_t RangeMarks::Count() const {
  return toInt16(static_cast<double>(ranges_.Count()));
}

void RangeMarks::place(std::size_t index, const TimelineScale& scale) {
  const Range& range = *ranges_.Item(index);
  Mark& mark = marks_[index - 1];
  mark.left = scale.x(range.dBegin);
  mark.width = scale.length(range);
}

void RangeMarks::placeAll(const TimelineScale& scale) {
  for (std::size_t i = 1; i <= marks_.size(); ++i) place(i, scale);
}

void RangeMarks::add(const Range& range, const std::string& caption, std::int32_t colour,
                     const TimelineScale& scale) {
  ranges_.Add(range.dend, range.dBegin, {});
  Mark mark;
  mark.caption = caption;
  mark.colour = colour;
  marks_.push_back(mark);
  place(marks_.size(), scale);
}

void RangeMarks::removeLast() {
  ranges_.Remove(ranges_.Count());
  marks_.pop_back();
}

void RangeMarks::remove(const std::vector<std::int16_t>& indexes) {
  for (auto index = indexes.rbegin(); index != indexes.rend(); ++index) {
    ranges_.Remove(static_cast<std::size_t>(*index));
    marks_.erase(marks_.begin() + (*index - 1));
  }
}

void RangeMarks::setBounds(std::int16_t index, const Range& range) {
  *ranges_.Item(static_cast<std::size_t>(index)) = range;
}

void RangeMarks::setTitle(std::int16_t index, const std::string& title) {
  marks_.at(static_cast<std::size_t>(index) - 1).title = title;
}

void RangeMarks::colourAll(std::int32_t colour) {
  for (Mark& mark : marks_) mark.colour = colour;
}

void RangeMarks::colour(std::int16_t index, std::int32_t colour) {
  ranges_.Item(static_cast<std::size_t>(index));  // a stale index ends here
  marks_[static_cast<std::size_t>(index) - 1].colour = colour;
}

bool RangeMarks::isSelected(const Range& range, const RangeSelection& selection) const {
  const double a = ranges_.Item(static_cast<std::size_t>(selection.start))->dBegin;
  const double b = ranges_.Item(static_cast<std::size_t>(selection.end))->dBegin;
  return range.dBegin >= std::min(a, b) && range.dBegin <= std::max(a, b);
}

std::vector<std::int16_t> RangeMarks::selected(const RangeSelection& selection) const {
  std::vector<std::int16_t> indexes;
  if (!selection.any()) return indexes;
  for (std::int16_t i = 1; i <= Count(); ++i) {
    if (isSelected(*ranges_.Item(static_cast<std::size_t>(i)), selection)) indexes.push_back(i);
  }
  return indexes;
}

void RangeMarks::highlight(const RangeSelection& selection) {
  if (!selection.any()) return;
  for (Mark& mark : marks_) mark.borderWidth = kPlainBorder;
  for (const std::int16_t index : selected(selection)) {
    marks_[static_cast<std::size_t>(index) - 1].borderWidth = kSelectedBorder;
  }
}

std::int16_t RangeMarks::at(double x, double slack) const {
  for (const double margin : {0.0, slack}) {
    for (std::size_t i = marks_.size(); i >= 1; --i) {
      const Mark& mark = marks_[i - 1];
      const double extra = mark.width < 2 * margin ? margin : 0;
      const bool inside = x >= mark.left - extra && x < mark.left + mark.width + extra;
      if (inside) return static_cast<std::int16_t>(i);
    }
  }
  return 0;
}

std::int16_t RangeMarks::neighbour(std::int16_t current, bool forward) const {
  const std::size_t count = ranges_.Count();
  const auto from = static_cast<std::size_t>(current);
  const bool known = current >= 1 && from <= count;
  // Ranges that begin together follow one another by their indexes.
  const auto before = [&](std::size_t a, std::size_t b) {
    const double ta = ranges_.Item(a)->dBegin;
    const double tb = ranges_.Item(b)->dBegin;
    return forward ? (ta != tb ? ta < tb : a < b) : (ta != tb ? ta > tb : a > b);
  };
  std::size_t best = 0;
  for (std::size_t i = 1; i <= count; ++i) {
    if (known && !before(from, i)) continue;
    if (best == 0 || before(i, best)) best = i;
  }
  return static_cast<std::int16_t>(best);
}

}  // namespace velra
