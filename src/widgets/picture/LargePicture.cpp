// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/picture/LargePicture.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <utility>

#include "widgets/Texts.h"
#include "widgets/picture/MoviePictures.h"

namespace velra {

namespace {

constexpr double kFirstShareOfScreen = 0.7;
constexpr QSize kLeastSize(160, 120);

}  // namespace

LargePicture::LargePicture(MoviePictures& pictures, QWidget* owner)
    : QWidget(owner, Qt::Window), pictures_(pictures) {
  setObjectName(QStringLiteral("LargePicture"));
  setAccessibleName(Texts::tr("Movie picture"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kLeastSize);
  connect(&pictures_, &MoviePictures::changed, this, [this] { update(); });
}

// The movie's proportions are known when it is opened.
void LargePicture::chooseSize() {
  const QRect room = screen()->availableGeometry();
  const QSize wanted = room.size() * kFirstShareOfScreen;
  const QSize own = pictures_.size();
  resize(own.isEmpty() ? wanted : own.scaled(wanted, Qt::KeepAspectRatio));
  move(room.center() - rect().center());
}

void LargePicture::present() {
  if (!std::exchange(hasSize_, true)) chooseSize();
  show();
  raise();
  activateWindow();
  setFocus();
}

QRect LargePicture::place() const {
  const QSize own = pictures_.size();
  QRect place(QPoint(), own.isEmpty() ? size() : own.scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  return place;
}

void LargePicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  pictures_.paint(painter, place());
}

void LargePicture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (isVisible()) pictures_.showIn(this, place().size() * devicePixelRatio());
}

void LargePicture::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  pictures_.showIn(this, place().size() * devicePixelRatio());
}

void LargePicture::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  pictures_.showIn(this, {});
}

void LargePicture::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    escPressed_ = true;
    return;
  }
  if (event->key() != Qt::Key_F11) return QWidget::keyPressEvent(event);
  if (!event->isAutoRepeat()) setWindowState(windowState() ^ Qt::WindowFullScreen);
}

// Only the release: after the press it would go to the tool, where it has another meaning. And only
// of a press here: the one that has closed a box ends in this window too.
void LargePicture::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QWidget::keyReleaseEvent(event);
  if (!event->isAutoRepeat() && std::exchange(escPressed_, false)) close();
}

}  // namespace velra
