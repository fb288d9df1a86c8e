// SPDX-License-Identifier: GPL-3.0-or-later

// Where the parts of a set of rows stand, and what of it is in sight.
#include <QCheckBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "forms/SetOfRows.h"
#include "widgets/Twips.h"
#include "widgets/forms/SetOfRowsWidget.h"

namespace velra {

namespace {

// Twips.
constexpr int kRowPitch = 400;
constexpr int kRowHeight = 300;
constexpr int kTickWidth = 255;
constexpr int kTextWidth = 4000;
constexpr int kPanelStart = 100;
constexpr int kPanelNarrower = 1600;
constexpr int kBarFromRight = 1500;

// Pixels.
constexpr int kButtonFrame = 8;     // above and below a caption, together
constexpr int kCaptionMargin = 16;  // before and behind it, together
constexpr int kTickMargin = 3;
constexpr int kBesideButtons = 3;

}  // namespace

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

void SetOfRowsWidget::placeRow(std::int16_t row, QWidget& tick, QWidget& value) const {
  const int top = pixelsFromTwips((row - 1) * rowPitch_);
  const int height = pixelsFromTwips(rowHeight_);
  const int tickWidth = std::max(pixelsFromTwips(kTickWidth),
                                 style()->pixelMetric(QStyle::PM_IndicatorWidth) + kTickMargin);
  tick.setGeometry(0, top, tickWidth, height);
  value.setGeometry(tickWidth, top, pixelsFromTwips(kTextWidth), height);
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
