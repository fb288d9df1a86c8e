// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/FramelistWidget.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>

#include "tool/Framelist.h"
#include "widgets/QtText.h"
#include "widgets/RuleColours.h"
#include "widgets/ShiftArgument.h"
#include "widgets/Texts.h"
#include "widgets/Twips.h"

namespace velra {

namespace {

constexpr int kSquareWidth = 3;     // pixels
constexpr int kReadingAtATime = 3;  // milliseconds

std::int16_t positionOf(int part) {
  return static_cast<std::int16_t>(part + 1);
}

void paintSquare(QPainter& painter, const QRect& cell, const QColor& colour) {
  const int half = kSquareWidth / 2 + 1;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, kSquareWidth + 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(cell.adjusted(half, half, -half, -half));
  painter.setPen(QPen(colour, kSquareWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(cell.adjusted(half, half, -half, -half));
}

}  // namespace

FramelistWidget::FramelistWidget(Framelist& strip, QWidget* parent)
    : PaintedPartsWidget(Texts::tr("Key frames"), parent), strip_(strip) {
  setObjectName(QStringLiteral("Framelist1"));
  reading_.setSingleShot(true);
  connect(&reading_, &QTimer::timeout, this, [this] { readPictures(); });
  strip_.events.Repaint = [this] {
    grow();
    rulesChanged();
  };
}

FramelistWidget::~FramelistWidget() {
  strip_.events.Repaint = nullptr;
}

QSize FramelistWidget::sizeHint() const {
  return {pixelsFromTwips(9000), pixelsFromTwips(strip_.iCellY() + Framelist::ScrollBar::kHeight)};
}

// What areas bring into view when the focus comes: what the view shows, or they would scroll to the
// middle of the strip.
QVariant FramelistWidget::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query != Qt::ImCursorRectangle) return PaintedPartsWidget::inputMethodQuery(query);
  return QRect(-pos(), parentWidget()->size());
}

void FramelistWidget::fillRoom(const QSize& room) {
  room_ = room.width();
  resize(width(), room.height());
  grow();
}

void FramelistWidget::grow() {
  const int pictures = pixelsFromTwips(strip_.panelWidth()) + 1;
  resize(qMax(room_, pictures), height());
  fitRules();
}

void FramelistWidget::fitRules() {
  const double twips = twipsFromPixels(width());
  if (strip_.width() != twips) strip_.Resize(twips);
}

int FramelistWidget::partWidth() const {
  return pixelsFromTwips(strip_.iCellX());
}

int FramelistWidget::partCount() const {
  return strip_.Count();
}

QRect FramelistWidget::partRect(int part) const {
  return {pixelsFromTwips(strip_.left(positionOf(part)) + strip_.panelLeft()), 0,
          pixelsFromTwips(strip_.iCellX()), pixelsFromTwips(strip_.iCellY())};
}

QString FramelistWidget::partName(int part) const {
  return toQString(strip_.image(positionOf(part)).caption);
}

bool FramelistWidget::partSelected(int part) const {
  return strip_.image(positionOf(part)).squareVisible;
}

int FramelistWidget::currentPart() const {
  const int part = strip_.iSelectedEnd() - 1;
  return part >= 0 && part < partCount() ? part : -1;
}

int FramelistWidget::partAt(const QPoint& place) const {
  return strip_.iImageAt(twipsFromPixels(place.x()) - strip_.panelLeft(),
                         twipsFromPixels(place.y())) -
         1;
}

void FramelistWidget::selectPart(int part, int shift) {
  strip_.MouseDown(positionOf(part), shift);
}

void FramelistWidget::openPart(int part) {
  strip_.DoubleClick(positionOf(part));
}

void FramelistWidget::paintParts(QPainter& painter, const QRect& dirty) {
  painter.fillRect(dirty, palette().color(QPalette::Dark));
  for (int part = 0; part < partCount(); ++part) {
    if (partRect(part).intersects(dirty)) paintPicture(painter, part);
  }
}

QRect FramelistWidget::pictureRect(int part) const {
  const int margin = pixelsFromTwips(Framelist::kMargin);
  return partRect(part).adjusted(margin, margin, -margin, -margin);
}

void FramelistWidget::paintPicture(QPainter& painter, int part) {
  const Framelist::Image& image = strip_.image(positionOf(part));
  const QRect place = pictureRect(part);
  const QPixmap* pixmap = pictures_.find(image.picture, place.size() * devicePixelRatioF());
  if (pixmap && !pixmap->isNull()) {
    painter.drawPixmap(place, *pixmap);
  } else {
    painter.fillRect(place, palette().color(QPalette::Mid));
  }
  if (!pixmap) {
    reading_.start(0);
  } else if (pixmap->isNull()) {
    painter.setPen(palette().color(QPalette::BrightText));
    painter.drawText(place, Qt::AlignCenter, QStringLiteral("?"));
  }
  if (image.squareVisible) paintSquare(painter, partRect(part), colourOf(image.squareColour));
}

// Pictures are large files. Those in view are read after the painting and a few at a time, so that
// the strip follows hand and keys meanwhile.
void FramelistWidget::readPictures() {
  QElapsedTimer clock;
  clock.start();
  const QRect shown = visibleRegion().boundingRect();
  for (int part = 0; part < partCount(); ++part) {
    const QRect place = pictureRect(part);
    const Picture& picture = strip_.image(positionOf(part)).picture;
    const QSize size = place.size() * devicePixelRatioF();
    if (!place.intersects(shown) || pictures_.find(picture, size)) continue;
    if (clock.elapsed() >= kReadingAtATime) return reading_.start(0);
    pictures_.read(picture, size);
    update(place);
  }
}

void FramelistWidget::moveEvent(QMoveEvent* event) {
  PaintedPartsWidget::moveEvent(event);
  update();  // the frame of the focus stays where the view is
}

std::int16_t FramelistWidget::imageForKey(int key) const {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      return strip_.iNeighbour(key == Qt::Key_Right);
    case Qt::Key_Home:
    case Qt::Key_End:
      return strip_.iImageAtEnd(key == Qt::Key_End);
    default:
      return 0;
  }
}

bool FramelistWidget::takeKey(const QKeyEvent& event) {
  const std::int16_t image = imageForKey(event.key());
  if (image == 0) return false;
  strip_.MouseDown(image, shiftArgument(event.modifiers()));
  Q_EMIT partReached(image - 1);
  return true;
}

}  // namespace velra
