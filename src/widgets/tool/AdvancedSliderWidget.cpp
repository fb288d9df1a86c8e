// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/AdvancedSliderWidget.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "tool/AdvancedSlider.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/tool/PaintedPartsEvents.h"
#include "widgets/tool/TimelinePainter.h"

namespace velra {

namespace {

constexpr int kBlinkInterval = 500;
constexpr int kSliderHeight = 24;  // pixels
constexpr double kRulesWidthTwips = 33000;
constexpr double kNarrowTwips = 60;  // a mark too narrow to hit answers this far on both sides
constexpr int kAnnounceInterval = 400;

}  // namespace

AdvancedSliderWidget::AdvancedSliderWidget(AdvancedSlider& advsld, QWidget* parent)
    : PaintedPartsWidget(QStringLiteral("Timeline"), parent), advsld_(advsld) {
  setMaximumWidth(maximumRulesWidth());
  setEnabled(advsld_.Enabled());
  Timer1_.setInterval(kBlinkInterval);
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
  return {pixelsFromTwips(9000), TimelinePainter::kMarkRowHeight + kSliderHeight};
}

void AdvancedSliderWidget::thumbMoved() {
  update(sliderRect());
  if (sinceAnnounced_.isValid() && sinceAnnounced_.elapsed() < kAnnounceInterval) return;
  sinceAnnounced_.restart();
  announceValue(*this, advsld_.dPosition());
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

QRect AdvancedSliderWidget::sliderRect() const {
  return {0, TimelinePainter::kMarkRowHeight, width(), kSliderHeight};
}

int AdvancedSliderWidget::thumbLength() const {
  return style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this);
}

QStyleOptionSlider AdvancedSliderWidget::sliderOption() const {
  QStyleOptionSlider option;
  option.initFrom(this);
  option.state |= QStyle::State_Horizontal;
  option.state.setFlag(QStyle::State_HasFocus, false);  // the focus frame goes around the whole
  option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
  option.activeSubControls = dragging_ ? QStyle::SC_SliderHandle : QStyle::SC_None;
  option.orientation = Qt::Horizontal;
  option.minimum = AdvancedSlider::Slider::kMin;
  option.maximum = AdvancedSlider::Slider::kMax;
  option.sliderPosition = option.sliderValue = advsld_.slider().value;
  // The thumb's centre runs between the points where the marks of both ends stand.
  const int inset = pixelsFromTwips(AdvancedSlider::Slider::kThumbMargin) - thumbLength() / 2;
  option.rect = sliderRect().adjusted(inset, 0, -inset, 0);
  return option;
}

void AdvancedSliderWidget::paintParts(QPainter& painter, const QRect& dirty) {
  // The thumb moves often, and alone.
  if (dirty.top() < TimelinePainter::kMarkRowHeight) TimelinePainter(painter, *this).paint(advsld_);
  const QStyleOptionSlider slider = sliderOption();
  style()->drawComplexControl(QStyle::CC_Slider, &slider, &painter, this);
}

void AdvancedSliderWidget::fitRules() {
  const double twips = twipsFromPixels(width());
  if (advsld_.slider().width != twips) advsld_.Resize(twips);
}

std::int32_t AdvancedSliderWidget::valueAt(int x) const {
  const double margin = AdvancedSlider::Slider::kThumbMargin / kTwipsPerPixel;
  return qRound((x - margin) / (width() - 2 * margin) * AdvancedSlider::Slider::kMax);
}

}  // namespace velra
