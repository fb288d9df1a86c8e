// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/StripView.h"

#include <QScrollBar>
#include <QWheelEvent>

#include "tool/Framelist.h"
#include "widgets/Texts.h"
#include "widgets/Twips.h"
#include "widgets/tool/FramelistWidget.h"

namespace velra {

namespace {

constexpr int kNotch = 120;  // of the wheel

}  // namespace

StripView::StripView(Framelist& strip, QWidget* parent)
    : QScrollArea(parent), strip_(new FramelistWidget(strip, this)) {
  setObjectName(QStringLiteral("StripView"));
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidget(strip_);
  QScrollBar& bar = *horizontalScrollBar();
  bar.setObjectName(QStringLiteral("HScroll1"));
  bar.setAccessibleName(Texts::tr("Scroll key frames"));
  bar.setSingleStep(pixelsFromTwips(strip.ImageX() / 4.0));
  connect(strip_, &FramelistWidget::partReached, this, [this](int part) { reveal(part); });
  connect(strip_, &PaintedPartsWidget::currentPartChanged, this,
          [this](int part) { revealIfHidden(part); });
}

void StripView::fit() {
  strip_->fillRoom({width(), viewport()->height()});
}

void StripView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  fit();
}

QRect StripView::shown() const {
  return {-strip_->pos(), viewport()->size()};
}

void StripView::reveal(int part) {
  const QRect place = strip_->partRect(part);
  ensureVisible(place.center().x(), 0, place.width() / 2 + 1, 0);
}

// What a click selects is in view already; were it moved, a second click would meet another.
void StripView::revealIfHidden(int part) {
  if (part >= 0 && !shown().intersects(strip_->partRect(part))) reveal(part);
}

void StripView::wheelEvent(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  const int rotation = delta.x() != 0 ? delta.x() : delta.y();
  QScrollBar& bar = *horizontalScrollBar();
  bar.setValue(bar.value() - rotation * strip_->partWidth() / kNotch);
  event->setAccepted(bar.maximum() > 0);
}

}  // namespace velra
