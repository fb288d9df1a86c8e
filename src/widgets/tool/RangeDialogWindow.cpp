// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/RangeDialogWindow.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "widgets/QtText.h"
#include "widgets/ShiftArgument.h"
#include "widgets/Texts.h"

namespace velra {

namespace {

constexpr const char* kBoxNames[] = {"hh1", "mm1", "ss1", "ff1", "hh2", "mm2", "ss2", "ff2"};
constexpr const char* kBoxLabels[] = {"hh", "mm", "ss", "ff"};
constexpr const char* kBoxMeanings[] = {
    QT_TRANSLATE_NOOP("Texts", "hours"), QT_TRANSLATE_NOOP("Texts", "minutes"),
    QT_TRANSLATE_NOOP("Texts", "seconds"), QT_TRANSLATE_NOOP("Texts", "frames")};
constexpr std::size_t kBoxesOfAFrame = 4;
constexpr int kLongestTyping = 3;  // the third character is refused by the rules

}  // namespace

RangeDialogWindow::RangeDialogWindow(RangeDialog& rules, QWidget* owner)
    : QDialog(owner), rules_(rules) {
  setObjectName(QStringLiteral("RangeDialog"));
  setWindowTitle(QStringLiteral("(Sub)Expression Time Constraints"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(makeFrame("FrameS", QStringLiteral("Start Time"), RangeDialog::hh1));
  layout->addWidget(makeFrame("FrameE", QStringLiteral("End Time"), RangeDialog::hh2));
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("OKButton"));
  ok->setDefault(true);
  QPushButton* cancelButton =
      buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::ActionRole);
  cancelButton->setObjectName(QStringLiteral("CancelButton"));
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  connect(ok, &QPushButton::clicked, this, [this] {
    rules_.OKButton();
    accept();
  });
  connect(cancelButton, &QPushButton::clicked, this, [this] { cancel(); });
  boxes_[RangeDialog::hh1]->setFocus();
  boxes_[RangeDialog::hh1]->selectAll();
}

QGroupBox* RangeDialogWindow::makeFrame(const char* name, const QString& caption,
                                        std::size_t firstField) {
  auto* frame = new QGroupBox(caption, this);
  frame->setObjectName(QLatin1String(name));
  auto* row = new QHBoxLayout(frame);
  for (std::size_t i = 0; i < kBoxesOfAFrame; ++i) {
    auto* column = new QVBoxLayout;
    auto* label = new QLabel(QLatin1String(kBoxLabels[i]), frame);
    label->setAlignment(Qt::AlignHCenter);
    QLineEdit* box = makeBox(static_cast<RangeDialog::Field>(firstField + i));
    box->setAccessibleName(caption + QStringLiteral(", ") + Texts::tr(kBoxMeanings[i]));
    column->addWidget(label);
    column->addWidget(box);
    row->addLayout(column);
  }
  return frame;
}

QLineEdit* RangeDialogWindow::makeBox(RangeDialog::Field field) {
  auto* box = new QLineEdit(toQString(rules_.text(field)), this);
  box->setObjectName(QLatin1String(kBoxNames[field]));
  box->setAlignment(Qt::AlignHCenter);
  box->setMaxLength(kLongestTyping);
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("000000")));
  box->setEnabled(rules_.enabled(field));
  box->installEventFilter(this);
  boxes_[field] = box;
  connect(box, &QLineEdit::textChanged, this, [this, field](const QString& text) {
    show(field, rules_.Change(field, fromQString(text)));
  });
  return box;
}

void RangeDialogWindow::show(RangeDialog::Field field, const std::string& text) {
  QLineEdit& box = *boxes_[field];
  const QString wanted = toQString(text);
  if (box.text() != wanted) box.setText(wanted);
}

bool RangeDialogWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool up = key.key() == Qt::Key_Up;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
      if (watched != boxes_[i] || (!up && key.key() != Qt::Key_Down)) continue;
      const auto field = static_cast<RangeDialog::Field>(i);
      show(field, rules_.KeyDown(field, up ? RangeDialog::kKeyUp : RangeDialog::kKeyDown,
                                 shiftArgument(key.modifiers())));
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void RangeDialogWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    cancel();
  } else {
    QDialog::keyPressEvent(event);
  }
}

void RangeDialogWindow::cancel() {
  rules_.CancelButton();
  QDialog::reject();
}

}  // namespace velra
