// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/LightFrames.h"

#include <QPainter>
#include <QStyleOption>

namespace velra {

namespace {

constexpr int kDarkGround = 128;  // lightness of 255, below which outlines are light
constexpr int kFrameAlpha = 130;
// In pixels, as the toolkit has them.
constexpr double kCorner = 2;
constexpr int kUnderTitle = 3;

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kDarkGround;
}

bool isFramed(QStyle::PrimitiveElement element, const QStyleOption& option) {
  switch (element) {
    case QStyle::PE_PanelLineEdit: {
      const auto* box = qstyleoption_cast<const QStyleOptionFrame*>(&option);
      return box && box->lineWidth > 0;  // else a part of another box
    }
    case QStyle::PE_Frame:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_FrameMenu:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_PanelButtonCommand:
      return true;
    default:
      return false;
  }
}

// Such have a coloured outline: boxes to type in with the focus, buttons and lists only when it
// came by the keyboard.
bool isMarked(const QStyleOption& option, bool isText) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool shown = isText || option.state.testFlag(QStyle::State_KeyboardFocusChange);
  return (shown && option.state.testFlag(QStyle::State_HasFocus)) ||
         (button && button->features.testFlag(QStyleOptionButton::DefaultButton));
}

}  // namespace

QColor LightFrames::outlineOf(const QPalette& palette) {
  if (!isDark(palette)) return palette.color(QPalette::Mid);
  QColor colour = palette.color(QPalette::WindowText);
  colour.setAlpha(kFrameAlpha);
  return colour;
}

void LightFrames::frame(const QRect& place, const QStyleOption& option, QPainter& painter) const {
  const bool wanted = isDark(option.palette) && baseStyle()->name() == QLatin1String("fusion");
  if (place.isEmpty() || !wanted) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(outlineOf(option.palette));
  painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  painter.restore();
}

void LightFrames::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (!isFramed(element, *option)) return;
  const bool isBox = element == PE_PanelLineEdit || element == PE_IndicatorCheckBox ||
                     element == PE_PanelButtonCommand;
  if (isBox && isMarked(*option, element == PE_PanelLineEdit)) return;
  QRect place = option->rect;
  if (element == PE_FrameGroupBox) {
    place.setTop(place.top() + kUnderTitle +
                 qMax(pixelMetric(PM_IndicatorHeight), option->fontMetrics.height()));
  }
  frame(place, *option, *painter);
}

void LightFrames::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_TabBarTabShape || element == CE_ProgressBarGroove) {
    frame(option->rect, *option, *painter);
  }
}

void LightFrames::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const auto framePart = [&](SubControl part) {
    frame(subControlRect(control, option, part, widget), *option, *painter);
  };
  if (control == CC_Slider) framePart(SC_SliderHandle);
  if (control == CC_ScrollBar) framePart(SC_ScrollBarSlider);
  const bool isBox = control == CC_ComboBox || control == CC_SpinBox;
  const bool isText = control == CC_SpinBox;
  if (isBox && !isMarked(*option, isText)) frame(option->rect, *option, *painter);
}

}  // namespace velra
