// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/SetOfRowsWidget.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "app/ApplicationModule.h"
#include "forms/SetOfRows.h"
#include "forms/ctlSetOfStringCL.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/forms/ListBox.h"
#include "widgets/forms/RowText.h"

namespace velra {

namespace {

QString plainCaption(const ApplicationModule& app, Message message) {
  return toQString(app.LoadResString(message)).remove(u'&');
}

}  // namespace

SetOfRowsWidget::SetOfRowsWidget(SetOfRows& rows, const ApplicationModule& app,
                                 const QString& label, QWidget* parent)
    : QWidget(parent),
      rows_(rows),
      hasLists_(dynamic_cast<ctlSetOfStringCL*>(&rows) != nullptr),
      label_(label),
      Picture2_(new QWidget(this)),
      Picture1_(new QWidget(Picture2_)),
      VScroll1_(new QScrollBar(Qt::Vertical, this)) {
  measureRows();
  Picture2_->setObjectName(QStringLiteral("Picture2"));
  Picture1_->setObjectName(QStringLiteral("Picture1"));
  VScroll1_->setObjectName(QStringLiteral("VScroll1"));
  VScroll1_->setAccessibleName(label_);
  VScroll1_->setSingleStep(rowPitch_);
  connect(VScroll1_, &QScrollBar::valueChanged, this, [this](int value) { scrollTo(-value); });
  makeButtons(app);
  rows_.onChange = [this] { showRows(); };
  showRows();
}

SetOfRowsWidget::~SetOfRowsWidget() {
  rows_.onChange = nullptr;
}

void SetOfRowsWidget::makeButtons(const ApplicationModule& app) {
  const auto make = [&](const char* name, Message caption) {
    auto* button = new QPushButton(plainCaption(app, caption), this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(button->text() + u' ' + label_);
    button->setAutoDefault(false);
    return button;
  };
  Command1_ = make("Command1", Message::New);
  Command2_ = make("Command2", Message::Delete);
  connect(Command1_, &QPushButton::clicked, this, [this] { addClicked(); });
  connect(Command2_, &QPushButton::clicked, this, [this] { rows_.Command2_Click(); });
}

void SetOfRowsWidget::addClicked() {
  rows_.Command1_Click();
  VScroll1_->setValue(VScroll1_->maximum());
  if (!widgets_.empty()) widgets_.back().value->setFocus(Qt::OtherFocusReason);
}

void SetOfRowsWidget::showRows() {
  const auto count = static_cast<std::size_t>(rows_.Count());
  while (widgets_.size() > count) {
    delete widgets_.back().label;
    delete widgets_.back().value;
    delete widgets_.back().Check1;
    widgets_.pop_back();
  }
  while (widgets_.size() < count) addRowWidgets(static_cast<std::int16_t>(widgets_.size() + 1));
  for (std::int16_t row = 1; row <= rows_.Count(); ++row) showRow(row);
  Command1_->setEnabled(rows_.Enabled());
  Command2_->setEnabled(rows_.Enabled());
  updateScrollRange();
}

void SetOfRowsWidget::addRowWidgets(std::int16_t row) {
  Row widgets;
  const QString name = label_ + u' ' + QString::number(row);
  widgets.Check1 = new QCheckBox(Picture1_);
  widgets.Check1->setObjectName(QStringLiteral("Check1_%1").arg(row));
  widgets.Check1->setAccessibleName(name);
  connect(widgets.Check1, &QCheckBox::clicked, this,
          [this, row](bool ticked) { rows_.tickRow(row, ticked); });
  widgets.value = hasLists_ ? makeList(row) : makeText(row);
  widgets.value->setAccessibleName(name);
  if (hasLists_) {
    // Only a label tells what a list is; its own name is the chosen text.
    widgets.label = new QLabel(name, Picture1_);
    widgets.label->setBuddy(widgets.value);
    widgets.label->hide();
  }
  placeRow(row, *widgets.Check1, *widgets.value);
  widgets.Check1->show();
  widgets.value->show();
  putInTabOrder(widgets);
  widgets_.push_back(widgets);
}

// Behind the other rows and before the buttons, as on the screen.
void SetOfRowsWidget::putInTabOrder(const Row& widgets) {
  setTabOrder(Command1_, widgets.Check1);
  setTabOrder(widgets.Check1, widgets.value);
  setTabOrder(widgets.value, Command1_);
  for (QWidget* widget : {static_cast<QWidget*>(widgets.Check1), widgets.value}) {
    widget->installEventFilter(this);
  }
}

bool SetOfRowsWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) scrollToRow(static_cast<QWidget*>(watched)->y());
  return QWidget::eventFilter(watched, event);
}

QWidget* SetOfRowsWidget::makeText(std::int16_t row) {
  auto* text = new RowText(Picture1_);
  text->setObjectName(QStringLiteral("Text1_%1").arg(row));
  connect(text, &QLineEdit::textEdited, this,
          [this, row](const QString& edited) { rows_.editRow(row, fromQString(edited)); });
  return text;
}

QWidget* SetOfRowsWidget::makeList(std::int16_t row) {
  auto* list = new ListBox(Picture1_);
  list->setObjectName(QStringLiteral("Combo1_%1").arg(row));
  list->setAccessibleDescription(label_ + u' ' + QString::number(row));
  connect(list, &QComboBox::textActivated, this,
          [this, row](const QString& chosen) { rows_.editRow(row, fromQString(chosen)); });
  return list;
}

void SetOfRowsWidget::showRow(std::int16_t row) {
  const Row& widgets = widgets_[static_cast<std::size_t>(row) - 1];
  widgets.Check1->setChecked(rows_.isTicked(row));
  widgets.Check1->setEnabled(rows_.Enabled());
  widgets.value->setEnabled(rows_.Enabled());
  if (auto* list = dynamic_cast<ListBox*>(widgets.value)) {
    list->showItems(rows_.choices(), rows_.rowText(row));
  } else if (auto* text = qobject_cast<QLineEdit*>(widgets.value)) {
    const QString shown = toQString(rows_.rowText(row));
    if (text->text() == shown) return;
    text->setText(shown);
    text->setCursorPosition(0);
  }
}

void SetOfRowsWidget::wheelEvent(QWheelEvent* event) {
  // Rows that can move do so first; then the wheel is the form's.
  const int before = VScroll1_->value();
  if (VScroll1_->isVisible() && event->angleDelta().y() != 0) {
    VScroll1_->setValue(before + (event->angleDelta().y() > 0 ? -rowPitch_ : rowPitch_));
  }
  event->setAccepted(VScroll1_->value() != before);
}

}  // namespace velra
