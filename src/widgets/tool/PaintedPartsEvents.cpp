// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/PaintedPartsEvents.h"

#include <QAccessible>
#include <QWidget>

namespace velra {

void announceParts(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&widget, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&event);
}

void announceCurrentPart(QWidget& widget, int part) {
  if (part < 0 || !QAccessible::isActive()) return;
  if (widget.hasFocus()) {
    QAccessibleEvent focus(&widget, QAccessible::Focus);
    focus.setChild(part);
    QAccessible::updateAccessibility(&focus);
  }
  QAccessibleEvent selection(&widget, QAccessible::Selection);
  selection.setChild(part);
  QAccessible::updateAccessibility(&selection);
}

void announceValue(QWidget& widget, double value) {
  if (!QAccessible::isActive()) return;
  QAccessibleValueChangeEvent event(&widget, value);
  QAccessible::updateAccessibility(&event);
}

}  // namespace velra
