// Where the controls of the tool's tab stand. Twips, from the form's top left corner.
#include "widgets/ToolPanel.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "forms/FormLayout.h"
#include "widgets/AdvancedSliderWidget.h"
#include "widgets/StripView.h"
#include "widgets/Twips.h"
#include "widgets/VideoPictureWidget.h"

namespace velra {

namespace {

constexpr int kGap = 100;
constexpr int kLeft = 100;
constexpr int kTop = 450;
constexpr int kRowHeight = 400;
constexpr int kBackWidth = 1100;
constexpr int kPictureWidth = 4000;
constexpr int kPictureHeight = 3000;
constexpr int kPictureTop = kTop + kRowHeight + kGap;
constexpr int kPlayerTop = kPictureTop + kPictureHeight + kGap;
constexpr int kRightColumn = kLeft + kPictureWidth + 2 * kGap;
constexpr int kSegmentButtonWidth = 720;
constexpr int kFramePadding = 150;
constexpr int kFrameTitle = 400;
constexpr int kFrameHeight = kFrameTitle + kRowHeight + kFramePadding;
constexpr int kFrameWidth = 10 * kSegmentButtonWidth + 9 * kGap + 2 * kFramePadding;
constexpr int kFrameTop = kPlayerTop + kRowHeight - kFrameHeight;
constexpr int kTimelineTop = kPlayerTop + kRowHeight + 2 * kGap;
constexpr int kTimelineHeight = 840;
constexpr int kStripTop = kTimelineTop + kTimelineHeight + kGap;
constexpr int kStripHeight = 1110;

/// The panel begins below the tabs.
void place(QWidget& widget, int left, int top, int width, int height) {
  widget.setGeometry(pixelsFromTwips(left), pixelsFromTwips(top - form_layout::kTabsHeight),
                     pixelsFromTwips(width), pixelsFromTwips(height));
}

}  // namespace

QSize ToolPanel::leastSize() {
  return {pixelsFromTwips(kRightColumn + kFrameWidth + kGap),
          pixelsFromTwips(kStripTop + kStripHeight + kGap - form_layout::kTabsHeight)};
}

void ToolPanel::LayoutPlayerControls() {
  const int right = twipsFromPixels(width()) - kGap;
  place(*BackButt_, kLeft, kTop, kBackWidth, kRowHeight);
  place(*txtTime_, kLeft + kBackWidth + kGap, kTop, kPictureWidth - kBackWidth - kGap, kRowHeight);
  place(*picVideoWindow_, kLeft, kPictureTop, kPictureWidth, kPictureHeight);
  const int count = static_cast<int>(playerButtons_.size());
  const int buttonWidth = (kPictureWidth - (count - 1) * kGap) / count;
  int left = kLeft;
  for (QPushButton* button : playerButtons_) {
    place(*button, left, kPlayerTop, buttonWidth, kRowHeight);
    left += buttonWidth + kGap;
  }
  place(*rtbTrans_, kRightColumn, kTop, right - kRightColumn, kFrameTop - kTop - kGap);
}

void ToolPanel::LayoutSegmentControls() {
  const int right = twipsFromPixels(width()) - kGap;
  place(*VideoFrame_, kRightColumn, kFrameTop, right - kRightColumn, kFrameHeight);
  int left = kFramePadding;
  for (QPushButton* button : segmentButtons_) {
    button->setGeometry(pixelsFromTwips(left), pixelsFromTwips(kFrameTitle),
                        pixelsFromTwips(kSegmentButtonWidth), pixelsFromTwips(kRowHeight));
    left += kSegmentButtonWidth + kGap;
  }
  const int rulesWidth = twipsFromPixels(AdvancedSliderWidget::maximumRulesWidth());
  place(*advsld_, kLeft, kTimelineTop, qMin(right - kLeft, rulesWidth), kTimelineHeight);
  place(*stripView_, 0, kStripTop, right + kGap, kStripHeight);
}

void ToolPanel::LayoutControls() {
  LayoutPlayerControls();
  LayoutSegmentControls();
  advsld_->fitRules();
  stripView_->fit();
}

}  // namespace velra
