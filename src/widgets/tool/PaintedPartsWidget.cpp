// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/PaintedPartsWidget.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "widgets/FocusFrame.h"
#include "widgets/QtText.h"
#include "widgets/ShiftArgument.h"
#include "widgets/tool/PaintedPartsEvents.h"

namespace velra {

PaintedPartsWidget::PaintedPartsWidget(const QString& name, QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(name);
}

void PaintedPartsWidget::rulesChanged() {
  update();
  if (announcedCount_ != partCount()) {
    announcedCount_ = partCount();
    announceParts(*this);
  }
  if (announcedPart_ != currentPart()) {
    announcedPart_ = currentPart();
    announceCurrentPart(*this, announcedPart_);
    Q_EMIT currentPartChanged(announcedPart_);
  }
}

bool PaintedPartsWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const int part = partAt(help.pos());
  const QString caption = part >= 0 ? partName(part) : QString();
  QToolTip::showText(help.globalPos(), plainToolTip(fromQString(caption)), this);
  return true;
}

void PaintedPartsWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  paintParts(painter, event->rect());
  if (hasFocus()) paintFocusFrame(painter, visibleRegion().boundingRect(), palette());
}

void PaintedPartsWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fitRules();
}

void PaintedPartsWidget::mousePressEvent(QMouseEvent* event) {
  const int part = partAt(event->position().toPoint());
  if (part >= 0) selectPart(part, shiftArgument(event->modifiers()));
}

void PaintedPartsWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  const int part = partAt(event->position().toPoint());
  if (part >= 0) {
    openPart(part);
  } else {
    mousePressEvent(event);
  }
}

void PaintedPartsWidget::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !event->modifiers().testFlag(Qt::ControlModifier) && currentPart() >= 0) {
    openPart(currentPart());
  } else if (!takeKey(*event)) {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace velra
