// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>
#include <QPalette>

namespace velra {

/// The frame of the keyboard's focus around a painted widget, plain in every style and palette.
inline void paintFocusFrame(QPainter& painter, const QRect& place, const QPalette& palette) {
  constexpr int kWidth = 2;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette.color(QPalette::Highlight), kWidth, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(place.adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
}

}  // namespace velra
