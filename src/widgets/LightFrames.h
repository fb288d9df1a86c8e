// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace velra {

/// The style of the desktop. Where that is the toolkit's own, which draws all outlines darker than
/// the window, the boxes, buttons and frames on a dark ground have light ones.
class LightFrames : public QProxyStyle {
  Q_OBJECT

 public:
  /// For what paints its own frame.
  static QColor outlineOf(const QPalette& palette);

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;

 private:
  void frame(const QRect& place, const QStyleOption& option, QPainter& painter) const;
};

}  // namespace velra
