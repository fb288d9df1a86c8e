#include "widgets/FramelistWidget.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "tool/Framelist.h"
#include "widgets/QtText.h"
#include "widgets/RuleColours.h"
#include "widgets/ShiftArgument.h"
#include "widgets/Twips.h"

namespace velra {

namespace {

constexpr int kSquareWidth = 3;  // pixels

std::int16_t positionOf(int part) {
  return static_cast<std::int16_t>(part + 1);
}

}  // namespace

FramelistWidget::FramelistWidget(Framelist& strip, QWidget* parent)
    : PaintedPartsWidget(QStringLiteral("Key frames"), parent),
      strip_(strip),
      HScroll1_(new QScrollBar(Qt::Horizontal, this)) {
  HScroll1_->setObjectName(QStringLiteral("HScroll1"));
  HScroll1_->setAccessibleName(QStringLiteral("Scroll key frames"));
  HScroll1_->setFocusPolicy(Qt::NoFocus);
  connect(HScroll1_, &QScrollBar::valueChanged, this,
          [this](int value) { strip_.Scroll(static_cast<std::int16_t>(value)); });
  strip_.events.Repaint = [this] {
    showScrollBar();
    rulesChanged();
  };
  showScrollBar();
}

FramelistWidget::~FramelistWidget() {
  strip_.events.Repaint = nullptr;
}

QSize FramelistWidget::sizeHint() const {
  return {pixelsFromTwips(9000), pixelsFromTwips(strip_.iCellY() + Framelist::ScrollBar::kHeight)};
}

void FramelistWidget::showScrollBar() {
  const Framelist::ScrollBar& bar = strip_.scrollBar();
  const QSignalBlocker quiet(HScroll1_);
  HScroll1_->setRange(0, qMax(0, int{bar.max}));
  HScroll1_->setPageStep(qMax(1, int{bar.largeChange}));
  HScroll1_->setSingleStep(qMax(1, int{bar.smallChange}));
  HScroll1_->setValue(bar.value);
  HScroll1_->setVisible(bar.visible);
}

int FramelistWidget::partCount() const {
  return strip_.Count();
}

QRect FramelistWidget::partRect(int part) const {
  const Framelist::Image& image = strip_.image(positionOf(part));
  return {pixelsFromTwips(image.left + strip_.panelLeft()), 0, pixelsFromTwips(strip_.iCellX()),
          pixelsFromTwips(strip_.iCellY())};
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
  painter.fillRect(rect(), palette().color(QPalette::Dark));
  for (int part = 0; part < partCount(); ++part) {
    if (partRect(part).intersects(dirty)) paintPicture(painter, part);
  }
}

void FramelistWidget::paintPicture(QPainter& painter, int part) {
  const Framelist::Image& image = strip_.image(positionOf(part));
  const QRect cell = partRect(part);
  const int margin = pixelsFromTwips(Framelist::kMargin);
  const QRect place = cell.adjusted(margin, margin, -margin, -margin);
  const QPixmap pixmap = pictures_.pixmap(image.picture, place.size() * devicePixelRatioF());
  if (pixmap.isNull()) {
    painter.fillRect(place, palette().color(QPalette::Mid));
    painter.setPen(palette().color(QPalette::BrightText));
    painter.drawText(place, Qt::AlignCenter, QStringLiteral("?"));
  } else {
    painter.drawPixmap(place, pixmap);
  }
  if (!image.squareVisible) return;
  const int half = kSquareWidth / 2 + 1;
  painter.setPen(QPen(Qt::white, kSquareWidth + 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(half, half, -half, -half));
  painter.setPen(QPen(colourOf(image.squareColour), kSquareWidth, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(cell.adjusted(half, half, -half, -half));
}

void FramelistWidget::resizeEvent(QResizeEvent* event) {
  const int bar = pixelsFromTwips(Framelist::ScrollBar::kHeight);
  HScroll1_->setGeometry(0, height() - bar, width(), bar);
  PaintedPartsWidget::resizeEvent(event);
}

// A window system may make the window narrower than it is asked to; the rules hear of no width that
// would end the program.
void FramelistWidget::fitRules() {
  const double least = strip_.leastWidth(static_cast<std::size_t>(partCount()));
  const double twips = qMax<double>(twipsFromPixels(width()), least);
  if (strip_.width() != twips) strip_.Resize(twips);
}

void FramelistWidget::wheelEvent(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  const int notches = delta.x() != 0 ? delta.x() : delta.y();
  if (HScroll1_->isVisible()) {
    HScroll1_->setValue(HScroll1_->value() - notches * strip_.scrollBar().smallChange / 120);
  }
  event->accept();
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
  strip_.ScrollTo(image);
  return true;
}

}  // namespace velra
