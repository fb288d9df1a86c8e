// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <vector>

#include "tool/AdvancedSlider.h"

class QPainter;
class QWidget;

namespace velra {

/// Paints the marks of a timeline: a bracket over the span of each range, with its title where that
/// fits, on a light ground that stays the same in a dark palette, since the brackets' colours are
/// fixed.
class TimelinePainter {
 public:
  static constexpr int kMarkRowHeight = 30;  // pixels, a range's body of 375 twips in it

  TimelinePainter(QPainter& painter, const QWidget& widget) : painter_(painter), widget_(widget) {}

  void paint(const AdvancedSlider& advsld);

  /// The body of a range; one of little length is as wide as its ends.
  static QRect markRect(const AdvancedSlider::Mark& mark);

 private:
  struct PlacedMark {
    QRect body;
    const AdvancedSlider::Mark* mark;
  };
  using Placed = std::vector<PlacedMark>;

  void paintGround(const AdvancedSlider& advsld);
  void paintMark(const QRect& body, const AdvancedSlider::Mark& mark);
  void paintOutline(const QRect& body);
  void paintTitles(Placed inOrder);
  void paintBlinkLine(const BlinkLine& line);

  QPainter& painter_;
  const QWidget& widget_;
};

}  // namespace velra
