// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/FieldFrame.h"

#include <QPainter>
#include <QStyleOptionGroupBox>

#include "forms/FieldBox.h"
#include "widgets/FocusFrame.h"
#include "widgets/QtText.h"
#include "widgets/Texts.h"

namespace velra {

QRect FieldFrame::inside() const {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
}

void FieldFrame::standFor(const FieldBox& box) {
  box_ = &box;
  setFocusPolicy(Qt::TabFocus);
}

QString FieldFrame::spokenValue() const {
  if (box_->family == ControlFamily::Check1) {
    return box_->value == Value(std::int16_t{1}) ? Texts::tr("ticked") : Texts::tr("not ticked");
  }
  if (!box_->rows) return toQString(toText(box_->value));
  QStringList rows;
  for (std::int16_t row = 1; row <= box_->rows->Count(); ++row) {
    rows << toQString(box_->rows->rowText(row));
  }
  return rows.join(QStringLiteral("; "));
}

void FieldFrame::focusInEvent(QFocusEvent* event) {
  if (box_) setAccessibleDescription(Texts::tr("%1, read only").arg(spokenValue()));
  QGroupBox::focusInEvent(event);
}

void FieldFrame::paintEvent(QPaintEvent* event) {
  QGroupBox::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  paintFocusFrame(painter, rect(), palette());
}

}  // namespace velra
