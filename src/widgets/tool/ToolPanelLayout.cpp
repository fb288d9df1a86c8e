// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/ToolPanelLayout.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "forms/FormLayout.h"
#include "widgets/Twips.h"
#include "widgets/picture/VideoPictureWidget.h"
#include "widgets/tool/AdvancedSliderWidget.h"
#include "widgets/tool/StripView.h"

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
ToolPanelLayout::ToolPanelLayout(const QWidget& panel, const ToolControls& controls)
    : controls_(controls), right_(twipsFromPixels(panel.width()) - kGap) {
  const int text = twipsFromPixels(panel.fontMetrics().height() + kAboveCaption);
  row_ = qMax(kPanelRowHeight, text);
  frameTitle_ = qMax(kFrameTitle, text);
  back_ = widthOf({controls.BackButt}, kBackWidth);
  playerButton_ = widthOf(controls.playerButtons, kButtonWidth);
  segmentButton_ = widthOf(controls.segmentButtons, kButtonWidth);
  const int playerRow = widthOfRow(controls.playerButtons, playerButton_);
  rightColumn_ = kLeft + qMax(kPictureWidth, playerRow) + 2 * kGap;
  pictureTop_ = kTop + row_ + kGap;
  playerTop_ = pictureTop_ + kPictureHeight + kGap;
  frameHeight_ = frameTitle_ + row_ + kFramePadding;
  frameTop_ = playerTop_ + row_ - frameHeight_;
  timelineTop_ = playerTop_ + row_ + 2 * kGap;
  stripTop_ = timelineTop_ + kTimelineHeight + kGap;
}

QSize ToolPanelLayout::leastSize() const {
  const int frame = widthOfRow(controls_.segmentButtons, segmentButton_) + 2 * kFramePadding;
  return {pixelsFromTwips(rightColumn_ + frame + kGap),
          pixelsFromTwips(stripTop_ + kStripHeight + kGap - form_layout::kTabsHeight)};
}

void ToolPanelLayout::placePlayerControls() const {
  place(*controls_.BackButt, kLeft, kTop, back_, row_);
  place(*controls_.txtTime, kLeft + back_ + kGap, kTop, kPictureWidth - back_ - kGap, row_);
  place(*controls_.picVideoWindow, kLeft, pictureTop_, kPictureWidth, kPictureHeight);
  int left = kLeft;
  for (QPushButton* button : controls_.playerButtons) {
    place(*button, left, playerTop_, playerButton_, row_);
    left += playerButton_ + kGap;
  }
  place(*controls_.rtbTrans, rightColumn_, kTop, right_ - rightColumn_, frameTop_ - kTop - kGap);
}

void ToolPanelLayout::placeSegmentControls() const {
  place(*controls_.VideoFrame, rightColumn_, frameTop_, right_ - rightColumn_, frameHeight_);
  int left = kFramePadding;
  for (QPushButton* button : controls_.segmentButtons) {
    button->setGeometry(pixelsFromTwips(left), pixelsFromTwips(frameTitle_),
                        pixelsFromTwips(segmentButton_), pixelsFromTwips(row_));
    left += segmentButton_ + kGap;
  }
  const int rulesWidth = twipsFromPixels(AdvancedSliderWidget::maximumRulesWidth());
  place(*controls_.advsld, kLeft, timelineTop_, qMin(right_ - kLeft, rulesWidth), kTimelineHeight);
  place(*controls_.stripView, 0, stripTop_, right_ + kGap, kStripHeight);
}

}  // namespace velra
