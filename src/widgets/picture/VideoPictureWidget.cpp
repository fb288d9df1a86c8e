// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/picture/VideoPictureWidget.h"

#include <QMouseEvent>
#include <QPainter>

#include "widgets/Texts.h"
#include "widgets/picture/MoviePictures.h"

namespace velra {

VideoPictureWidget::VideoPictureWidget(MoviePictures& pictures, QWidget* parent)
    : QWidget(parent), pictures_(pictures) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(Texts::tr("Movie picture"));
  connect(&pictures_, &MoviePictures::changed, this, [this] { update(); });
}

void VideoPictureWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  pictures_.showIn(this, size() * devicePixelRatio());
}

void VideoPictureWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT doubleClicked();
}

void VideoPictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  pictures_.paint(painter, rect());
}

}  // namespace velra
