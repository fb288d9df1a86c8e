// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/VideoPictureWidget.h"

#include <QPainter>

#include "widgets/Texts.h"

namespace velra {

namespace {

QImage imageOf(const PictureFrame& frame) {
  return {frame.pixels.data(), frame.width, frame.height, qsizetype{4} * frame.width,
          QImage::Format_RGB32};
}

}  // namespace

VideoPictureWidget::VideoPictureWidget(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(Texts::tr("Movie picture"));
}

void VideoPictureWidget::showMovie(MediaGraph* movie) {
  if (movie_) movie_->setNotify({});
  movie_ = movie;
  failed_ = false;
  if (movie_) movie_->setNotify([this](MediaGraph::Notice notice) { noticed(notice); });
  tellSize();
  update();
}

void VideoPictureWidget::tellSize() {
  const QSize pixels = size() * devicePixelRatio();
  if (movie_) movie_->setShownSize(pixels.width(), pixels.height());
}

void VideoPictureWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  tellSize();
}

void VideoPictureWidget::noticed(MediaGraph::Notice notice) {
  failed_ = notice == MediaGraph::Notice::Failed;
  // One repaint takes all pictures that have come until it runs.
  if (updatePending_.exchange(true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        updatePending_ = false;
        update();
      },
      Qt::QueuedConnection);
}

void VideoPictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto frame = movie_ ? movie_->picture() : nullptr;
  if (failed_ || !frame || frame->width <= 0 || frame->height <= 0) {
    painter.fillRect(rect(), Qt::black);
    painter.setPen(Qt::white);
    const QString failure = Texts::tr("The movie cannot be read any more.");
    if (failed_) painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, failure);
    return;
  }
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), imageOf(*frame));
}

}  // namespace velra
