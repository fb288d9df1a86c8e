#include "widgets/FramelistWidget.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>

#include "tool/Framelist.h"
#include "widgets/FocusFrame.h"
#include "widgets/PaintedPartsEvents.h"
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
    : QWidget(parent), strip_(strip), HScroll1_(new QScrollBar(Qt::Horizontal, this)) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("Key frames"));
  HScroll1_->setObjectName(QStringLiteral("HScroll1"));
  HScroll1_->setAccessibleName(QStringLiteral("Scroll key frames"));
  HScroll1_->setFocusPolicy(Qt::NoFocus);
  connect(HScroll1_, &QScrollBar::valueChanged, this,
          [this](int value) { strip_.Scroll(static_cast<std::int16_t>(value)); });
  strip_.events.Repaint = [this] { rulesChanged(); };
  showScrollBar();
}

FramelistWidget::~FramelistWidget() {
  strip_.events.Repaint = nullptr;
}

QSize FramelistWidget::sizeHint() const {
  return {pixelsFromTwips(9000), pixelsFromTwips(strip_.iCellY() + Framelist::ScrollBar::kHeight)};
}

void FramelistWidget::rulesChanged() {
  showScrollBar();
  update();
  if (announcedCount_ != partCount()) {
    announcedCount_ = partCount();
    announceParts(*this);
  }
  if (announcedPart_ != currentPart()) {
    announcedPart_ = currentPart();
    announceCurrentPart(*this, announcedPart_);
  }
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

void FramelistWidget::pressPart(int part) {
  strip_.MouseDown(positionOf(part), 0);
}

std::int16_t FramelistWidget::imageAt(const QPoint& place) const {
  return strip_.iImageAt(twipsFromPixels(place.x()) - strip_.panelLeft(),
                         twipsFromPixels(place.y()));
}

bool FramelistWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const std::int16_t image = imageAt(help.pos());
  const QString caption = image > 0 ? partName(image - 1) : QString();
  QToolTip::showText(help.globalPos(), plainToolTip(fromQString(caption)), this);
  return true;
}

void FramelistWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Dark));
  for (int part = 0; part < partCount(); ++part) {
    if (partRect(part).intersects(event->rect())) paintPicture(painter, part);
  }
  if (hasFocus()) paintFocusFrame(painter, rect(), palette());
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
  QWidget::resizeEvent(event);
  const int bar = pixelsFromTwips(Framelist::ScrollBar::kHeight);
  HScroll1_->setGeometry(0, height() - bar, width(), bar);
  fitRules();
}

void FramelistWidget::fitRules() {
  const double twips = twipsFromPixels(width());
  if (strip_.width() != twips) strip_.Resize(twips);
}

void FramelistWidget::mousePressEvent(QMouseEvent* event) {
  const std::int16_t image = imageAt(event->position().toPoint());
  if (image > 0) strip_.MouseDown(image, shiftArgument(event->modifiers()));
}

void FramelistWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  const std::int16_t image = imageAt(event->position().toPoint());
  if (image > 0) strip_.DoubleClick(image);
}

void FramelistWidget::wheelEvent(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  const int notches = delta.x() != 0 ? delta.x() : delta.y();
  if (HScroll1_->isVisible()) {
    HScroll1_->setValue(HScroll1_->value() - notches * strip_.scrollBar().smallChange / 120);
  }
  event->accept();
}

bool FramelistWidget::selectByKey(const QKeyEvent& event) {
  std::int16_t image = 0;
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      image = strip_.iNeighbour(event.key() == Qt::Key_Right);
      break;
    case Qt::Key_Home:
    case Qt::Key_End:
      image = strip_.iImageAtEnd(event.key() == Qt::Key_End);
      break;
    default:
      return false;
  }
  if (image == 0) return true;
  strip_.MouseDown(image, shiftArgument(event.modifiers()));
  strip_.ScrollTo(image);
  return true;
}

void FramelistWidget::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && currentPart() >= 0) {
    strip_.DoubleClick(positionOf(currentPart()));
  } else if (!selectByKey(*event)) {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace velra
