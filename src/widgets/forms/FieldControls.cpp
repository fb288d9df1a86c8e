// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/FieldControls.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>

#include "forms/CrossLanguageFields.h"
#include "forms/FieldBox.h"
#include "forms/FormFields.h"
#include "forms/FormLayout.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/forms/FieldFrame.h"
#include "widgets/forms/ListBox.h"
#include "widgets/forms/PlainTextBox.h"
#include "widgets/forms/SetOfRowsWidget.h"

namespace velra {

namespace {

using namespace form_layout;

constexpr int kFirstYear = 100;  // of the toolkit's date picker

/// A date edit that leaves the wheel to the form.
class DateBox : public QDateEdit {
 public:
  using QDateEdit::QDateEdit;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QWidget* makeText(FieldBox& box, QWidget* frame) {
  auto* text = new PlainTextBox(frame);
  text->setPlainText(toQString(toText(box.value)));
  text->setLocked(box.bReadOnly);
  QObject::connect(text, &QPlainTextEdit::textChanged, text,
                   [text, &box] { box.value = fromQString(text->enteredText()); });
  return text;
}

QWidget* makeCheck(FieldBox& box, QWidget* frame) {
  auto* check = new QCheckBox(frame);
  check->setChecked(box.value == Value(std::int16_t{1}));
  check->setEnabled(!box.bReadOnly);
  QObject::connect(check, &QCheckBox::clicked, check, [&box](bool checked) {
    box.value = static_cast<std::int16_t>(checked ? 1 : 0);
  });
  return check;
}

// A text that is no date leaves the one that was there.
QWidget* makeEarlyDate(FieldBox& box, const Date& date, QWidget* frame) {
  const auto shown = [&box] { return toQString(box.value.day().value().isoText()); };
  auto* text = new QLineEdit(shown(), frame);
  text->setEnabled(!box.bReadOnly);
  QObject::connect(text, &QLineEdit::textEdited, text, [&box, date](const QString& typed) {
    box.value = Date::fromIsoText(fromQString(typed)).value_or(date);
  });
  QObject::connect(text, &QLineEdit::editingFinished, text,
                   [text, shown] { text->setText(shown()); });
  return text;
}

QWidget* makeDate(FieldBox& box, QWidget* frame) {
  const auto date = box.value.day();
  if (date && date->year < kFirstYear) return makeEarlyDate(box, *date, frame);
  auto* picker = new DateBox(frame);
  picker->setCalendarPopup(true);
  picker->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
  picker->setDateRange(QDate(kFirstYear, 1, 1), QDate(9999, 12, 31));
  if (date) picker->setDate(QDate(date->year, date->month, date->day));
  picker->setEnabled(!box.bReadOnly);
  QObject::connect(picker, &QDateEdit::dateChanged, picker, [&box](QDate chosen) {
    box.value = Date{chosen.year(), chosen.month(), chosen.day()};
  });
  return picker;
}

QWidget* makeList(FieldBox& box, CrossLanguageFields* crossLanguage, QWidget* frame) {
  auto* list = new ListBox(frame);
  list->setEnabled(!box.bReadOnly);
  list->setAccessibleDescription(toQString(box.strComment.empty() ? box.strName : box.strComment));
  const auto show = [list, &box] { list->showItems(box.items, toText(box.value)); };
  show();
  box.onChange = show;
  QObject::connect(list, &QComboBox::textActivated, list,
                   [&box, crossLanguage](const QString& chosen) {
                     box.value = fromQString(chosen);
                     if (crossLanguage) crossLanguage->Combo1_Click(box);
                   });
  return list;
}

QWidget* makeControl(FieldBox& box, CrossLanguageFields* crossLanguage,
                     const ApplicationModule& app, QWidget* frame) {
  switch (box.family) {
    case ControlFamily::Text1:
      return makeText(box, frame);
    case ControlFamily::Check1:
      return makeCheck(box, frame);
    case ControlFamily::Combo1:
      return makeList(box, crossLanguage, frame);
    case ControlFamily::DTPicker1:
      return makeDate(box, frame);
    case ControlFamily::ctlSetOfString1:
    case ControlFamily::ctlSetOfStringCL1:
      return new SetOfRowsWidget(*box.rows, app, toQString(box.strName), frame);
  }
  return nullptr;
}

/// As wide and high as the layout has it, if the frame's title leaves that much.
void placeControl(QWidget& control, ControlFamily family, int extraHeight,
                  const FieldFrame& frame) {
  const QRect inside = frame.inside();
  int width = pixelsFromTwips(kControlWidth);
  int height = std::min(pixelsFromTwips(kControlHeight) + extraHeight, inside.height());
  if (family == ControlFamily::DTPicker1) {
    width = std::max(pixelsFromTwips(kDateWidth), control.sizeHint().width());
    height = std::max(pixelsFromTwips(kDateHeight), control.sizeHint().height());
  } else if (family == ControlFamily::Combo1) {
    height = control.sizeHint().height();
  } else if (family == ControlFamily::Text1) {
    height -= 4;  // the frame's line stays in sight around it
  }
  const int top = std::max(inside.top(), inside.top() + (inside.height() - height) / 2);
  control.setGeometry(pixelsFromTwips(kControlLeft), top, width, height);
}

}  // namespace

int extraBoxHeight(QWidget& form) {
  FieldFrame frame(QStringLiteral("Title"), &form);
  frame.resize(pixelsFromTwips(kFrameWidth), pixelsFromTwips(kFrameHeight));
  return std::max(0, SetOfRowsWidget::leastHeight(form) - frame.inside().height());
}

QGroupBox* makeFieldFrame(FieldBox& box, CrossLanguageFields* crossLanguage,
                          const ApplicationModule& app, int extraHeight, QWidget* panel) {
  auto* frame = new FieldFrame(toQString(box.strName), panel);
  frame->setObjectName(toQString(box.frameName()));
  // Boxes of several sets stand in the same place: the one on top hides those below.
  frame->setAutoFillBackground(true);
  frame->setGeometry(0, pixelsFromTwips(slotTop(box.slot())) + box.slot() * extraHeight,
                     pixelsFromTwips(kFrameWidth), pixelsFromTwips(kFrameHeight) + extraHeight);
  QWidget* control = makeControl(box, crossLanguage, app, frame);
  control->setObjectName(toQString(box.controlName()));
  control->setAccessibleName(toQString(box.strName));
  placeControl(*control, box.family, extraHeight, *frame);
  if (box.bReadOnly && box.family != ControlFamily::Text1) frame->standFor(box);
  for (QWidget* widget : {static_cast<QWidget*>(frame), control}) {
    widget->setToolTip(plainToolTip(box.strComment));
  }
  return frame;
}

}  // namespace velra
