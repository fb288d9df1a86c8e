// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/SplitterHandle.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

namespace velra {

namespace {

constexpr int kStepPixels = 10;

QAccessibleInterface* splitterInterface(const QString&, QObject* object) {
  auto* handle = qobject_cast<SplitterHandle*>(object);
  return handle ? new QAccessibleWidget(handle, QAccessible::Splitter) : nullptr;
}

}  // namespace

SplitterHandle::SplitterHandle(QWidget* parent) : QWidget(parent) {
  QAccessible::installFactory(splitterInterface);
  setCursor(Qt::SplitHCursor);
  setFocusPolicy(Qt::TabFocus);
}

void SplitterHandle::paintEvent(QPaintEvent*) {
  if (hasFocus()) QPainter(this).fillRect(rect(), palette().highlight());
}

void SplitterHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = true;
  Q_EMIT dragStarted();
}

void SplitterHandle::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) Q_EMIT dragged(mapToParent(event->position().toPoint()).x());
}

void SplitterHandle::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragging_ || event->button() != Qt::LeftButton) return;
  dragging_ = false;
  Q_EMIT dragEnded();
}

void SplitterHandle::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Q_EMIT stepped(-kStepPixels);
    case Qt::Key_Right:
      return Q_EMIT stepped(kStepPixels);
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace velra
