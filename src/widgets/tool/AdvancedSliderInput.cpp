// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse and the keys on the timeline.
#include "widgets/tool/AdvancedSliderWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

#include "tool/AdvancedSlider.h"
#include "widgets/ShiftArgument.h"

namespace velra {

void AdvancedSliderWidget::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (partAt(place) >= 0) return PaintedPartsWidget::mousePressEvent(event);
  if (event->button() != Qt::LeftButton || !sliderRect().contains(place)) return;
  const QStyleOptionSlider slider = sliderOption();
  const QRect thumb =
      style()->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderHandle, this);
  dragging_ = place.x() >= thumb.left() && place.x() <= thumb.right();
  grip_ = place.x() - thumb.center().x();
  if (!dragging_) page(place.x() < thumb.left() ? -1 : 1);
}

void AdvancedSliderWidget::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) advsld_.UserMovesThumb(valueAt(event->position().toPoint().x() - grip_));
}

void AdvancedSliderWidget::mouseReleaseEvent(QMouseEvent*) {
  dragging_ = false;
  update();
}

void AdvancedSliderWidget::selectPart(int part, int shift) {
  advsld_.MouseDown(static_cast<std::int16_t>(part + 1), shift);
}

void AdvancedSliderWidget::openPart(int part) {
  advsld_.DoubleClick(static_cast<std::int16_t>(part + 1));
}

void AdvancedSliderWidget::page(int direction) {
  advsld_.UserMovesThumb(advsld_.slider().value + direction * advsld_.slider().largeChange);
}

bool AdvancedSliderWidget::moveThumbByKey(int key) {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
      advsld_.UserSteps(false);
      return true;
    case Qt::Key_Right:
    case Qt::Key_Up:
      advsld_.UserSteps(true);
      return true;
    case Qt::Key_PageUp:
      page(-1);
      return true;
    case Qt::Key_PageDown:
      page(1);
      return true;
    case Qt::Key_Home:
      advsld_.UserMovesThumb(AdvancedSlider::Slider::kMin);
      return true;
    case Qt::Key_End:
      advsld_.UserMovesThumb(AdvancedSlider::Slider::kMax);
      return true;
    default:
      return false;
  }
}

bool AdvancedSliderWidget::selectByKey(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Left && event.key() != Qt::Key_Right) return false;
  const std::int16_t range = advsld_.iNeighbour(event.key() == Qt::Key_Right);
  if (range > 0) selectPart(range - 1, shiftArgument(event.modifiers() & ~Qt::ControlModifier));
  return true;
}

bool AdvancedSliderWidget::takeKey(const QKeyEvent& event) {
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  return control ? selectByKey(event) : moveThumbByKey(event.key());
}

}  // namespace velra
