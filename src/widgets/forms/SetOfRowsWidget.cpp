// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/SetOfRowsWidget.h"

#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>

#include "app/ApplicationModule.h"
#include "forms/SetOfRows.h"
#include "forms/ctlSetOfStringCL.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"

namespace velra {

namespace {

// Twips.
constexpr int kRowPitch = 400;
constexpr int kRowHeight = 300;
constexpr int kPanelStart = 100;
constexpr int kPanelNarrower = 1600;
constexpr int kBarFromRight = 1500;

// Pixels.
constexpr int kButtonFrame = 8;     // above and below a caption, together
constexpr int kCaptionMargin = 16;  // before and behind it, together
constexpr int kBesideButtons = 3;

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
  if (!controls_.empty()) controls_.back().value().setFocus(Qt::OtherFocusReason);
}

void SetOfRowsWidget::showRows() {
  const auto count = static_cast<std::size_t>(rows_.Count());
  while (controls_.size() > count) controls_.pop_back();
  while (controls_.size() < count) addRow(static_cast<std::int16_t>(controls_.size() + 1));
  for (const RowControls& row : controls_) row.update(rows_);
  Command1_->setEnabled(rows_.Enabled());
  Command2_->setEnabled(rows_.Enabled());
  updateScrollRange();
}

void SetOfRowsWidget::addRow(std::int16_t row) {
  const RowControls& controls = controls_.emplace_back(rows_, row, hasLists_, label_, *Picture1_);
  controls.place(rowPitch_, rowHeight_);
  controls.show();
  putInTabOrder(controls);
}

// Behind the other rows and before the buttons, as on the screen.
void SetOfRowsWidget::putInTabOrder(const RowControls& row) {
  setTabOrder(Command1_, &row.tick());
  setTabOrder(&row.tick(), &row.value());
  setTabOrder(&row.value(), Command1_);
  for (QWidget* widget : {&row.tick(), &row.value()}) widget->installEventFilter(this);
}

bool SetOfRowsWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) scrollToRow(static_cast<QWidget*>(watched)->y());
  return QWidget::eventFilter(watched, event);
}

void SetOfRowsWidget::wheelEvent(QWheelEvent* event) {
  // Rows that can move do so first; then the wheel is the form's.
  const int before = VScroll1_->value();
  if (VScroll1_->isVisible() && event->angleDelta().y() != 0) {
    VScroll1_->setValue(before + (event->angleDelta().y() > 0 ? -rowPitch_ : rowPitch_));
  }
  event->setAccepted(VScroll1_->value() != before);
}

int SetOfRowsWidget::leastHeight(const QWidget& form) {
  return 2 * (form.fontMetrics().height() + kButtonFrame) + 4;
}

void SetOfRowsWidget::measureRows() {
  // A large font makes higher rows; others have what the layout gives them.
  const int textHeight =
      fontMetrics().height() + 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
  rowHeight_ = std::max(kRowHeight, twipsFromPixels(textHeight));
  rowPitch_ = rowHeight_ + kRowPitch - kRowHeight;
}

void SetOfRowsWidget::scrollToRow(int top) {
  const int rowTop = twipsFromPixels(top);
  const int lowest = rowTop + rowHeight_ - twipsFromPixels(Picture2_->height());
  VScroll1_->setValue(std::min(std::max(VScroll1_->value(), lowest), rowTop));
}

void SetOfRowsWidget::updateScrollRange() {
  const int panelHeight = rows_.Count() * rowPitch_;
  Picture1_->setGeometry(pixelsFromTwips(kPanelStart), pixelsFromTwips(kPanelStart),
                         width() - pixelsFromTwips(kPanelNarrower), pixelsFromTwips(panelHeight));
  const int overhang = panelHeight - twipsFromPixels(Picture2_->height());
  VScroll1_->setRange(0, std::max(0, overhang));
  VScroll1_->setPageStep(twipsFromPixels(Picture2_->height()));
  VScroll1_->setVisible(overhang > 0);
  if (VScroll1_->value() > 0) scrollTo(-VScroll1_->value());
}

void SetOfRowsWidget::scrollTo(int top) {
  Picture1_->move(Picture1_->x(), pixelsFromTwips(top));
}

void SetOfRowsWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int barWidth = VScroll1_->sizeHint().width();
  const int caption = std::max(fontMetrics().horizontalAdvance(Command1_->text()),
                               fontMetrics().horizontalAdvance(Command2_->text()));
  const int strip = barWidth + 2 * kBesideButtons + caption + kCaptionMargin;
  const int barLeft = width() - std::max(pixelsFromTwips(kBarFromRight), strip);
  VScroll1_->setGeometry(barLeft, 0, barWidth, height());
  Picture2_->setGeometry(0, 0, barLeft, height());
  const int stripLeft = barLeft + barWidth;
  const int buttonWidth = width() - stripLeft - 2 * kBesideButtons;
  const int buttonHeight = std::min(Command1_->sizeHint().height(), height() / 2 - 2);
  const auto place = [&](QPushButton& button, int centre) {
    button.setGeometry(stripLeft + kBesideButtons, centre - buttonHeight / 2, buttonWidth,
                       buttonHeight);
  };
  place(*Command1_, height() / 4);
  place(*Command2_, height() * 3 / 4);
  updateScrollRange();
}

}  // namespace velra
