// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/picture/MoviePictures.h"

#include <QPainter>
#include <QRect>

#include "widgets/Texts.h"

namespace velra {

namespace {

QImage imageOf(const PictureFrame& frame) {
  return {frame.pixels.data(), frame.width, frame.height, qsizetype{4} * frame.width,
          QImage::Format_RGB32};
}

}  // namespace

void MoviePictures::showMovie(MediaGraph* movie) {
  if (movie_) movie_->setNotify({});
  movie_ = movie;
  failed_ = false;
  if (movie_) movie_->setNotify([this](MediaGraph::Notice notice) { noticed(notice); });
  tellSize();
  Q_EMIT changed();
}

QSize MoviePictures::size() const {
  return movie_ ? QSize(movie_->videoWidth(), movie_->videoHeight()) : QSize();
}

void MoviePictures::showIn(const QWidget* view, const QSize& pixels) {
  if (pixels.isEmpty()) {
    views_.erase(view);
  } else {
    views_[view] = pixels;
  }
  tellSize();
}

void MoviePictures::tellSize() {
  QSize largest(0, 0);
  for (const auto& [view, size] : views_) {
    if (size.width() > largest.width()) largest = size;
  }
  if (movie_) movie_->setShownSize(largest.width(), largest.height());
}

void MoviePictures::noticed(MediaGraph::Notice notice) {
  failed_ = notice == MediaGraph::Notice::Failed;
  // One repaint takes all pictures that have come until it runs.
  if (updatePending_.exchange(true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        updatePending_ = false;
        Q_EMIT changed();
      },
      Qt::QueuedConnection);
}

void MoviePictures::paint(QPainter& painter, const QRect& place) const {
  const auto frame = movie_ ? movie_->picture() : nullptr;
  if (failed_ || !frame || frame->width <= 0 || frame->height <= 0) {
    painter.fillRect(place, Qt::black);
    painter.setPen(Qt::white);
    const QString failure = Texts::tr("The movie cannot be read any more.");
    if (failed_) painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, failure);
    return;
  }
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, imageOf(*frame));
}

}  // namespace velra
