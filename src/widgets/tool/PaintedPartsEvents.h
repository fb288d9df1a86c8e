// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace velra {

/// Tell screen readers what the rules have changed.
void announceParts(QWidget& widget);                  ///< parts came, went or moved
void announceCurrentPart(QWidget& widget, int part);  ///< another one is selected; it is spoken
void announceValue(QWidget& widget, double value);

}  // namespace velra
