// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/RowControls.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>

#include "forms/SetOfRows.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/forms/ListBox.h"
#include "widgets/forms/RowText.h"

namespace velra {

namespace {

// Twips.
constexpr int kTickWidth = 255;
constexpr int kTextWidth = 4000;

constexpr int kTickMargin = 3;  // pixels

}  // namespace

RowControls::RowControls(SetOfRows& rows, std::int16_t row, bool hasLists, const QString& label,
                         QWidget& panel)
    : row_(row), Check1_(std::make_unique<QCheckBox>(&panel)) {
  const QString name = label + u' ' + QString::number(row);
  Check1_->setObjectName(QStringLiteral("Check1_%1").arg(row));
  Check1_->setAccessibleName(name);
  QObject::connect(Check1_.get(), &QCheckBox::clicked, Check1_.get(),
                   [&rows, row](bool ticked) { rows.tickRow(row, ticked); });
  if (hasLists) {
    makeList(rows, name, panel);
  } else {
    makeText(rows, panel);
  }
  value_->setAccessibleName(name);
}

RowControls::RowControls(RowControls&&) noexcept = default;
RowControls& RowControls::operator=(RowControls&&) noexcept = default;
RowControls::~RowControls() = default;

void RowControls::makeText(SetOfRows& rows, QWidget& panel) {
  auto text = std::make_unique<RowText>(&panel);
  text->setObjectName(QStringLiteral("Text1_%1").arg(row_));
  QObject::connect(
      text.get(), &QLineEdit::textEdited, text.get(),
      [&rows, row = row_](const QString& edited) { rows.editRow(row, fromQString(edited)); });
  value_ = std::move(text);
}

void RowControls::makeList(SetOfRows& rows, const QString& name, QWidget& panel) {
  auto list = std::make_unique<ListBox>(&panel);
  list->setObjectName(QStringLiteral("Combo1_%1").arg(row_));
  list->setAccessibleDescription(name);
  QObject::connect(
      list.get(), &QComboBox::textActivated, list.get(),
      [&rows, row = row_](const QString& chosen) { rows.editRow(row, fromQString(chosen)); });
  // Only a label tells what a list is; its own name is the chosen text.
  label_ = std::make_unique<QLabel>(name, &panel);
  label_->setBuddy(list.get());
  label_->hide();
  value_ = std::move(list);
}

QWidget& RowControls::tick() const {
  return *Check1_;
}

void RowControls::place(int pitch, int height) const {
  const int top = pixelsFromTwips((row_ - 1) * pitch);
  const int rowHeight = pixelsFromTwips(height);
  const int indicator = Check1_->style()->pixelMetric(QStyle::PM_IndicatorWidth);
  const int tickWidth = std::max(pixelsFromTwips(kTickWidth), indicator + kTickMargin);
  Check1_->setGeometry(0, top, tickWidth, rowHeight);
  value_->setGeometry(tickWidth, top, pixelsFromTwips(kTextWidth), rowHeight);
}

void RowControls::show() const {
  Check1_->show();
  value_->show();
}

void RowControls::update(const SetOfRows& rows) const {
  Check1_->setChecked(rows.isTicked(row_));
  Check1_->setEnabled(rows.Enabled());
  value_->setEnabled(rows.Enabled());
  if (auto* list = dynamic_cast<ListBox*>(value_.get())) {
    list->showItems(rows.choices(), rows.rowText(row_));
  } else if (auto* text = qobject_cast<QLineEdit*>(value_.get())) {
    const QString shown = toQString(rows.rowText(row_));
    if (text->text() == shown) return;
    text->setText(shown);
    text->setCursorPosition(0);
  }
}

}  // namespace velra
