// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/TimelineSlider.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "tool/AdvancedSlider.h"
#include "widgets/Twips.h"
#include "widgets/tool/TimelinePainter.h"

namespace velra {

QRect TimelineSlider::rect() const {
  return {0, TimelinePainter::kMarkRowHeight, widget_.width(), kHeight};
}

QStyleOptionSlider TimelineSlider::option() const {
  QStyleOptionSlider option;
  option.initFrom(&widget_);
  option.state |= QStyle::State_Horizontal;
  option.state.setFlag(QStyle::State_HasFocus, false);  // the focus frame goes around the whole
  option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
  option.activeSubControls = dragging_ ? QStyle::SC_SliderHandle : QStyle::SC_None;
  option.orientation = Qt::Horizontal;
  option.minimum = AdvancedSlider::Slider::kMin;
  option.maximum = AdvancedSlider::Slider::kMax;
  option.sliderPosition = option.sliderValue = advsld_.slider().value;
  // The thumb's centre runs between the points where the marks of both ends stand.
  const int thumb = widget_.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &widget_);
  const int inset = pixelsFromTwips(AdvancedSlider::Slider::kThumbMargin) - thumb / 2;
  option.rect = rect().adjusted(inset, 0, -inset, 0);
  return option;
}

void TimelineSlider::paint(QPainter& painter) const {
  const QStyleOptionSlider slider = option();
  widget_.style()->drawComplexControl(QStyle::CC_Slider, &slider, &painter, &widget_);
}

void TimelineSlider::press(const QPoint& place) {
  const QStyleOptionSlider slider = option();
  const QRect thumb = widget_.style()->subControlRect(QStyle::CC_Slider, &slider,
                                                      QStyle::SC_SliderHandle, &widget_);
  dragging_ = place.x() >= thumb.left() && place.x() <= thumb.right();
  grip_ = place.x() - thumb.center().x();
  if (!dragging_) page(place.x() < thumb.left() ? -1 : 1);
}

void TimelineSlider::drag(const QPoint& place) const {
  if (dragging_) advsld_.UserMovesThumb(valueAt(place.x() - grip_));
}

void TimelineSlider::page(int direction) const {
  advsld_.UserMovesThumb(advsld_.slider().value + direction * advsld_.slider().largeChange);
}

std::int32_t TimelineSlider::valueAt(int x) const {
  const double margin = AdvancedSlider::Slider::kThumbMargin / kTwipsPerPixel;
  return qRound((x - margin) / (widget_.width() - 2 * margin) * AdvancedSlider::Slider::kMax);
}

}  // namespace velra
