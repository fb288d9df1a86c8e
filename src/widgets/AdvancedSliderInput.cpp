// The mouse and the keys on the timeline.
#include "widgets/AdvancedSliderWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

#include "tool/AdvancedSlider.h"
#include "widgets/ShiftArgument.h"

namespace velra {

void AdvancedSliderWidget::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (const std::int16_t range = rangeAt(place)) {
    advsld_.MouseDown(range, shiftArgument(event->modifiers()));
    return;
  }
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

void AdvancedSliderWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (const std::int16_t range = rangeAt(event->position().toPoint())) {
    advsld_.DoubleClick(range);
  } else {
    mousePressEvent(event);
  }
}

void AdvancedSliderWidget::page(int direction) {
  advsld_.UserMovesThumb(advsld_.slider().value + direction * advsld_.slider().largeChange);
}

bool AdvancedSliderWidget::moveThumbByKey(int key) {
  const std::int32_t value = advsld_.slider().value;
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
      advsld_.UserMovesThumb(value - 1);
      return true;
    case Qt::Key_Right:
    case Qt::Key_Up:
      advsld_.UserMovesThumb(value + 1);
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

bool AdvancedSliderWidget::selectByKey(int key, Qt::KeyboardModifiers modifiers) {
  if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
  const std::int16_t range = advsld_.iNeighbour(key == Qt::Key_Right);
  if (range > 0) advsld_.MouseDown(range, shiftArgument(modifiers & ~Qt::ControlModifier));
  return true;
}

void AdvancedSliderWidget::keyPressEvent(QKeyEvent* event) {
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  bool done = false;
  if (control) {
    done = selectByKey(event->key(), event->modifiers());
  } else if (enter && currentPart() >= 0) {
    advsld_.DoubleClick(static_cast<std::int16_t>(currentPart() + 1));
    done = true;
  } else {
    done = moveThumbByKey(event->key());
  }
  if (!done) QWidget::keyPressEvent(event);
}

}  // namespace velra
