// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainPanes.h"

#include <QFrame>
#include <QLabel>
#include <QShortcut>

#include "shell/PaneLayout.h"
#include "widgets/Texts.h"
#include "widgets/Twips.h"
#include "widgets/main/NodeTreeView.h"
#include "widgets/main/SplitterHandle.h"

namespace velra {

namespace {

constexpr int kHandleWidth = 6;  // pixels: the gap alone would be hard to hit

QLabel* newHeading(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setMargin(3);
  return label;
}

}  // namespace

MainPanes::MainPanes(TreeModel& mainTree, TreeModel& expressionTree, QWidget* parent)
    : QWidget(parent),
      picTitles_(new QWidget(this)),
      headings_{newHeading(picTitles_, "lblTitle_0"), newHeading(picTitles_, "lblTitle_1")},
      mainTree_(new NodeTreeView(mainTree, this)),
      expressionTree_(new NodeTreeView(expressionTree, this)),
      imgSplitter_(new SplitterHandle(this)),
      picSplitter_(new QFrame(this)) {
  picTitles_->setObjectName(QStringLiteral("picTitles"));
  mainTree_->setObjectName(QStringLiteral("tvwMainTree"));
  mainTree_->setToolTip(QStringLiteral("AVDocument's Structure"));
  expressionTree_->setObjectName(QStringLiteral("tvwExpression"));
  imgSplitter_->setObjectName(QStringLiteral("imgSplitter"));
  imgSplitter_->setAccessibleName(Texts::tr("Splitter"));
  picSplitter_->setObjectName(QStringLiteral("picSplitter"));
  picSplitter_->setAutoFillBackground(true);
  picSplitter_->setBackgroundRole(QPalette::Mid);
  picSplitter_->hide();
  headings_[0]->setBuddy(mainTree_);
  headings_[1]->setBuddy(expressionTree_);
  setTabOrder(mainTree_, imgSplitter_);
  setTabOrder(imgSplitter_, expressionTree_);
  connectSplitter();
  connectKeys();
}

void MainPanes::connectKeys() {
  for (const char* keys : {"Ctrl+Tab", "Ctrl+Shift+Tab"}) {
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
    // As by Tab, so that a node is selected there.
    connect(shortcut, &QShortcut::activated, this, [this] {
      (mainTree_->hasFocus() ? expressionTree_ : mainTree_)->setFocus(Qt::TabFocusReason);
    });
  }
}

void MainPanes::connectSplitter() {
  connect(imgSplitter_, &SplitterHandle::dragStarted, this, [this] {
    dragBar(splitterLeft_);
    picSplitter_->show();
    picSplitter_->raise();
  });
  connect(imgSplitter_, &SplitterHandle::dragged, this,
          [this](int left) { dragBar(twipsFromPixels(left)); });
  connect(imgSplitter_, &SplitterHandle::dragEnded, this, [this] {
    picSplitter_->hide();
    moveSplitter(barLeft_);
  });
  connect(imgSplitter_, &SplitterHandle::stepped, this,
          [this](int pixels) { moveSplitter(splitterLeft_ + twipsFromPixels(pixels)); });
}

void MainPanes::setHeadings(const QString& main, const QString& expression) {
  headings_[0]->setText(main);
  headings_[1]->setText(expression);
  mainTree_->setAccessibleName(main);
  expressionTree_->setAccessibleName(expression);
}

void MainPanes::dragBar(int leftTwips) {
  barLeft_ = draggedSplitter(leftTwips, twipsFromPixels(width()));
  picSplitter_->setGeometry(pixelsFromTwips(barLeft_), mainTree_->y(), kHandleWidth,
                            mainTree_->height());
}

void MainPanes::moveSplitter(int leftTwips) {
  splitterLeft_ = leftTwips;
  layOut();
}

void MainPanes::layOut() {
  const PaneLayout panes = SizeControls(splitterLeft_, twipsFromPixels(width()));
  splitterLeft_ = panes.splitterLeft;
  const int top = headings_[0]->sizeHint().height();
  const int below = height() - top;
  const int leftWidth = pixelsFromTwips(panes.mainTreeWidth);
  const int rightEdge = pixelsFromTwips(panes.expressionLeft);
  const int rightWidth = pixelsFromTwips(panes.expressionWidth);
  picTitles_->setGeometry(0, 0, width(), top);
  headings_[0]->setGeometry(0, 0, leftWidth, top);
  headings_[1]->setGeometry(rightEdge, 0, rightWidth, top);
  mainTree_->setGeometry(0, top, leftWidth, below);
  expressionTree_->setGeometry(rightEdge, top, rightWidth, below);
  imgSplitter_->setGeometry(pixelsFromTwips(panes.splitterLeft), top, kHandleWidth, below);
  imgSplitter_->raise();
}

void MainPanes::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOut();
}

}  // namespace velra
