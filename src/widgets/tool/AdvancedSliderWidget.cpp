// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/AdvancedSliderWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "tool/AdvancedSlider.h"
#include "widgets/QtText.h"
#include "widgets/ShiftArgument.h"
#include "widgets/Texts.h"
#include "widgets/Twips.h"
#include "widgets/tool/PaintedPartsEvents.h"
#include "widgets/tool/TimelinePainter.h"

namespace velra {

namespace {

constexpr int kLineBlinkInterval = 500;
constexpr double kRulesWidthTwips = 33000;
constexpr double kNarrowTwips = 60;  // a mark too narrow to hit answers this far on both sides
constexpr int kAnnounceInterval = 400;

}  // namespace

AdvancedSliderWidget::AdvancedSliderWidget(AdvancedSlider& advsld, QWidget* parent)
    : PaintedPartsWidget(Texts::tr("Timeline"), parent), advsld_(advsld), slider_(advsld, *this) {
  setMaximumWidth(maximumRulesWidth());
  setEnabled(advsld_.Enabled());
  Timer1_.setInterval(kLineBlinkInterval);
  connect(&Timer1_, &QTimer::timeout, this, [this] { advsld_.BlinkTick(); });
  advsld_.events.Repaint = [this] {
    setEnabled(advsld_.Enabled());
    rulesChanged();
  };
  advsld_.events.ThumbMoved = [this] { thumbMoved(); };
  advsld_.events.RunBlinkTimer = [this](bool on) { on ? Timer1_.start() : Timer1_.stop(); };
}

AdvancedSliderWidget::~AdvancedSliderWidget() {
  advsld_.events.Repaint = nullptr;
  advsld_.events.ThumbMoved = nullptr;
  advsld_.events.RunBlinkTimer = nullptr;
}

int AdvancedSliderWidget::maximumRulesWidth() {
  return pixelsFromTwips(kRulesWidthTwips);
}

QSize AdvancedSliderWidget::sizeHint() const {
  return {pixelsFromTwips(9000), TimelinePainter::kMarkRowHeight + TimelineSlider::kHeight};
}

void AdvancedSliderWidget::thumbMoved() {
  update(slider_.rect());
  // With the focus its number would be spoken, beside the time code that the tool announces.
  if (hasFocus()) return;
  if (sinceAnnounced_.isValid() && sinceAnnounced_.elapsed() < kAnnounceInterval) return;
  sinceAnnounced_.restart();
  announceValue(*this, seconds());
}

double AdvancedSliderWidget::seconds() const {
  return advsld_.dPosition();
}

double AdvancedSliderWidget::firstSecond() const {
  return advsld_.dMin();
}

double AdvancedSliderWidget::lastSecond() const {
  return advsld_.dMax();
}

double AdvancedSliderWidget::stepSeconds() const {
  return (advsld_.dMax() - advsld_.dMin()) / AdvancedSlider::Slider::kMax;
}

void AdvancedSliderWidget::moveTo(double seconds) {
  if (stepSeconds() <= 0) return;
  advsld_.UserMovesThumb(qRound((seconds - advsld_.dMin()) / stepSeconds()));
}

int AdvancedSliderWidget::partCount() const {
  return static_cast<int>(advsld_.marks().size());
}

QRect AdvancedSliderWidget::partRect(int part) const {
  return TimelinePainter::markRect(advsld_.marks()[static_cast<std::size_t>(part)]);
}

QString AdvancedSliderWidget::partName(int part) const {
  return toQString(advsld_.marks()[static_cast<std::size_t>(part)].caption);
}

bool AdvancedSliderWidget::partSelected(int part) const {
  const auto& mark = advsld_.marks()[static_cast<std::size_t>(part)];
  return mark.borderWidth == AdvancedSlider::kSelectedBorder;
}

int AdvancedSliderWidget::currentPart() const {
  const int part = advsld_.iRangeSelectedEnd() - 1;
  return part >= 0 && part < partCount() ? part : -1;
}

int AdvancedSliderWidget::partAt(const QPoint& place) const {
  if (place.y() < 0 || place.y() >= TimelinePainter::kMarkRowHeight) return -1;
  return advsld_.iRangeAt(twipsFromPixels(place.x()) + kTwipsPerPixel / 2.0, kNarrowTwips) - 1;
}

void AdvancedSliderWidget::paintParts(QPainter& painter, const QRect& dirty) {
  // The thumb moves often, and alone.
  if (dirty.top() < TimelinePainter::kMarkRowHeight) TimelinePainter(painter, *this).paint(advsld_);
  slider_.paint(painter);
}

void AdvancedSliderWidget::fitRules() {
  const double twips = twipsFromPixels(width());
  if (advsld_.slider().width != twips) advsld_.Resize(twips);
}

void AdvancedSliderWidget::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (partAt(place) >= 0) return PaintedPartsWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && slider_.rect().contains(place)) slider_.press(place);
}

void AdvancedSliderWidget::mouseMoveEvent(QMouseEvent* event) {
  slider_.drag(event->position().toPoint());
}

void AdvancedSliderWidget::mouseReleaseEvent(QMouseEvent*) {
  slider_.release();
  update();
}

void AdvancedSliderWidget::selectPart(int part, int shift) {
  advsld_.MouseDown(static_cast<std::int16_t>(part + 1), shift);
}

void AdvancedSliderWidget::openPart(int part) {
  advsld_.DoubleClick(static_cast<std::int16_t>(part + 1));
}

bool AdvancedSliderWidget::moveThumbByKey(int key) {
  switch (key) {
    case Qt::Key_Down:
      advsld_.UserSteps(false);
      return true;
    case Qt::Key_Up:
      advsld_.UserSteps(true);
      return true;
    case Qt::Key_PageUp:
      slider_.page(-1);
      return true;
    case Qt::Key_PageDown:
      slider_.page(1);
      return true;
    case Qt::Key_Home:
      advsld_.UserMovesThumb(AdvancedSlider::Slider::kMin);
      return true;
    case Qt::Key_End:
      advsld_.UserMovesThumb(AdvancedSlider::Slider::kMax);
      return true;
    default:
      return false;
  }
}

bool AdvancedSliderWidget::selectByKey(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Left && event.key() != Qt::Key_Right) return false;
  const std::int16_t range = advsld_.iNeighbour(event.key() == Qt::Key_Right);
  if (range > 0) selectPart(range - 1, shiftArgument(event.modifiers() & ~Qt::AltModifier));
  return true;
}

bool AdvancedSliderWidget::takeKey(const QKeyEvent& event) {
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  return alt ? selectByKey(event) : moveThumbByKey(event.key());
}

}  // namespace velra
