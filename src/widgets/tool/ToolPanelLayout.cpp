// SPDX-License-Identifier: GPL-3.0-or-later

// Where the controls of the tool's tab stand. Twips, from the form's top left corner.
#include "widgets/tool/ToolPanel.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "forms/FormLayout.h"
#include "widgets/Twips.h"
#include "widgets/tool/AdvancedSliderWidget.h"
#include "widgets/tool/StripView.h"
#include "widgets/tool/VideoPictureWidget.h"

namespace velra {

namespace {

constexpr int kGap = 100;
constexpr int kLeft = 100;
constexpr int kTop = 450;
constexpr int kPanelRowHeight = 400;
constexpr int kBackWidth = 1100;
constexpr int kPictureWidth = 4000;
constexpr int kPictureHeight = 3000;
constexpr int kButtonWidth = 720;
constexpr int kFramePadding = 150;
constexpr int kFrameTitle = 400;
constexpr int kTimelineHeight = 840;
constexpr int kStripHeight = 1110;

// Pixels around a caption, on both sides together.
constexpr int kBesideCaption = 12;
constexpr int kAboveCaption = 6;

int widthOf(const QList<QPushButton*>& buttons, int least) {
  int widest = 0;
  for (const QPushButton* button : buttons) {
    widest = qMax(widest, button->fontMetrics().horizontalAdvance(button->text()));
  }
  return qMax(least, twipsFromPixels(widest + kBesideCaption));
}

int widthOfRow(const QList<QPushButton*>& buttons, int width) {
  const int count = static_cast<int>(buttons.size());
  return count * width + (count - 1) * kGap;
}

/// The panel begins below the tabs.
void place(QWidget& widget, int left, int top, int width, int height) {
  widget.setGeometry(pixelsFromTwips(left), pixelsFromTwips(top - form_layout::kTabsHeight),
                     pixelsFromTwips(width), pixelsFromTwips(height));
}

}  // namespace

// A large font makes rows higher and buttons wider; what stands behind them moves.
ToolPanel::Measures ToolPanel::measures() const {
  const int text = twipsFromPixels(fontMetrics().height() + kAboveCaption);
  Measures is{};
  is.row = qMax(kPanelRowHeight, text);
  is.frameTitle = qMax(kFrameTitle, text);
  is.back = widthOf({BackButt_}, kBackWidth);
  is.playerButton = widthOf(playerButtons_, kButtonWidth);
  is.segmentButton = widthOf(segmentButtons_, kButtonWidth);
  const int playerRow = widthOfRow(playerButtons_, is.playerButton);
  is.rightColumn = kLeft + qMax(kPictureWidth, playerRow) + 2 * kGap;
  is.pictureTop = kTop + is.row + kGap;
  is.playerTop = is.pictureTop + kPictureHeight + kGap;
  is.frameHeight = is.frameTitle + is.row + kFramePadding;
  is.frameTop = is.playerTop + is.row - is.frameHeight;
  is.timelineTop = is.playerTop + is.row + 2 * kGap;
  is.stripTop = is.timelineTop + kTimelineHeight + kGap;
  return is;
}

QSize ToolPanel::leastSize() const {
  const Measures is = measures();
  const int frame = widthOfRow(segmentButtons_, is.segmentButton) + 2 * kFramePadding;
  return {pixelsFromTwips(is.rightColumn + frame + kGap),
          pixelsFromTwips(is.stripTop + kStripHeight + kGap - form_layout::kTabsHeight)};
}

void ToolPanel::LayoutPlayerControls() {
  const Measures is = measures();
  const int right = twipsFromPixels(width()) - kGap;
  place(*BackButt_, kLeft, kTop, is.back, is.row);
  place(*txtTime_, kLeft + is.back + kGap, kTop, kPictureWidth - is.back - kGap, is.row);
  place(*picVideoWindow_, kLeft, is.pictureTop, kPictureWidth, kPictureHeight);
  int left = kLeft;
  for (QPushButton* button : playerButtons_) {
    place(*button, left, is.playerTop, is.playerButton, is.row);
    left += is.playerButton + kGap;
  }
  place(*rtbTrans_, is.rightColumn, kTop, right - is.rightColumn, is.frameTop - kTop - kGap);
}

void ToolPanel::LayoutSegmentControls() {
  const Measures is = measures();
  const int right = twipsFromPixels(width()) - kGap;
  place(*VideoFrame_, is.rightColumn, is.frameTop, right - is.rightColumn, is.frameHeight);
  int left = kFramePadding;
  for (QPushButton* button : segmentButtons_) {
    button->setGeometry(pixelsFromTwips(left), pixelsFromTwips(is.frameTitle),
                        pixelsFromTwips(is.segmentButton), pixelsFromTwips(is.row));
    left += is.segmentButton + kGap;
  }
  const int rulesWidth = twipsFromPixels(AdvancedSliderWidget::maximumRulesWidth());
  place(*advsld_, kLeft, is.timelineTop, qMin(right - kLeft, rulesWidth), kTimelineHeight);
  place(*stripView_, 0, is.stripTop, right + kGap, kStripHeight);
}

void ToolPanel::LayoutControls() {
  LayoutPlayerControls();
  LayoutSegmentControls();
  advsld_->fitRules();
  stripView_->fit();
}

}  // namespace velra
