// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <cstdint>

class QPainter;
class QStyleOptionSlider;
class QWidget;

namespace velra {

class AdvancedSlider;

/// The slider below the marks of the timeline: how it looks in the widget, and what the mouse does
/// with its thumb.
class TimelineSlider {
 public:
  static constexpr int kHeight = 24;  // pixels

  /// Both must outlive it.
  TimelineSlider(AdvancedSlider& advsld, const QWidget& widget)
      : advsld_(advsld), widget_(widget) {}

  /// Its place in the widget.
  QRect rect() const;
  void paint(QPainter& painter) const;

  /// The mouse goes down in its place: it takes the thumb, or moves it by a page.
  void press(const QPoint& place);
  /// The mouse goes to a place, and takes the thumb along when it holds it.
  void drag(const QPoint& place) const;
  void release() { dragging_ = false; }

  /// Moves the thumb by a page, -1 or 1.
  void page(int direction) const;

 private:
  QStyleOptionSlider option() const;
  std::int32_t valueAt(int x) const;

  AdvancedSlider& advsld_;
  const QWidget& widget_;
  bool dragging_ = false;
  int grip_ = 0;  // from the thumb's centre to where the mouse holds it
};

}  // namespace velra
