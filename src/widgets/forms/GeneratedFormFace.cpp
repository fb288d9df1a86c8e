// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/GeneratedFormFace.h"

#include <QGroupBox>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWheelEvent>
#include <algorithm>

#include "app/ApplicationModule.h"
#include "forms/FormFields.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/forms/FieldControls.h"

namespace velra {

namespace {

// Room for six boxes, so that a panel that no SetFrameHeight has sized holds all that it can get.
constexpr int kDesignWidth = 8400;
constexpr int kDesignHeight = 9300;

constexpr int kButtonMargin = 150;
constexpr int kBelowTabText = 2;  // pixels

}  // namespace

GeneratedFormFace::GeneratedFormFace(const ApplicationModule& app, Form form, QWidget* parent)
    : QWidget(parent),
      form_(std::move(form)),
      TabStrip1_(new QTabBar(this)),
      Picture2_(new QWidget(this)),
      Picture1_(new QWidget(Picture2_)),
      VScroll1_(new QScrollBar(Qt::Vertical, Picture2_)),
      HScroll1_(new QScrollBar(Qt::Horizontal, this)) {
  extraBox_ = extraBoxHeight(*this);
  makeTabs();
  makePanel(app);
  makeButtons(app);
  makeShortcuts();
  panel_ = panelSize(metrics(designSize()), form_.framePasses);
  const int rows = form_.framePasses > 0 ? kBoxesOfATab : static_cast<int>(frames_.size());
  panel_.height += twipsFromPixels(rows * extraBox_);
  Picture1_->resize(pixelsFromTwips(panel_.width), pixelsFromTwips(panel_.height));
}

GeneratedFormFace::~GeneratedFormFace() {
  for (FieldBox& box : form_.fields.colControls()) box.onChange = nullptr;
}

QSize GeneratedFormFace::designSize() {
  return {pixelsFromTwips(kDesignWidth), pixelsFromTwips(kDesignHeight)};
}

void GeneratedFormFace::makeTabs() {
  TabStrip1_->setObjectName(QStringLiteral("TabStrip1"));
  TabStrip1_->setDrawBase(false);
  TabStrip1_->setExpanding(false);
  for (int tab = 1; tab <= form_.tabs.count(); ++tab) {
    TabStrip1_->addTab(toQString(form_.tabs.caption(tab)));
    TabStrip1_->setTabData(tab - 1, toQString(form_.tabs.key(tab)));
  }
  const int hint = TabStrip1_->sizeHint().height();
  const int textEnd = (hint + TabStrip1_->fontMetrics().height()) / 2 + kBelowTabText;
  if (textEnd > tabsHeight()) extraTabs_ = hint - tabsHeight();
  // A click counts on the tab in front too; keys and the wheel only change tabs.
  connect(TabStrip1_, &QTabBar::currentChanged, this,
          [this](int index) { TabStrip1_Click(index + 1); });
  connect(TabStrip1_, &QTabBar::tabBarClicked, this, [this](int index) {
    if (index >= 0 && index == TabStrip1_->currentIndex()) TabStrip1_Click(index + 1);
  });
}

void GeneratedFormFace::makePanel(const ApplicationModule& app) {
  Picture2_->setObjectName(QStringLiteral("Picture2"));
  Picture1_->setObjectName(QStringLiteral("Picture1"));
  VScroll1_->setObjectName(QStringLiteral("VScroll1"));
  HScroll1_->setObjectName(QStringLiteral("HScroll1"));
  makeFrames(app);
  takeCoveredFromTabKey();
  VScroll1_->raise();
  for (QScrollBar* bar : {VScroll1_, HScroll1_}) {
    bar->setSingleStep(form_layout::kSmallChange);
    bar->setFocusPolicy(Qt::NoFocus);
  }
  connect(VScroll1_, &QScrollBar::valueChanged, this,
          [this](int value) { scrollTo(static_cast<std::int16_t>(-value)); });
  connect(HScroll1_, &QScrollBar::valueChanged, this,
          [this](int value) { Picture1_->move(pixelsFromTwips(-value), Picture1_->y()); });
}

// The Tab key takes the boxes as they are made: from slot to slot, whichever set stands on top.
void GeneratedFormFace::makeFrames(const ApplicationModule& app) {
  auto& boxes = form_.fields.colControls();
  frames_.resize(boxes.size());
  for (std::size_t slot = 0; slot < kBoxesOfATab; ++slot) {
    for (std::size_t i = slot; i < boxes.size(); i += kBoxesOfATab) {
      frames_[i] = makeFieldFrame(boxes[i], form_.special, app, extraBox_, Picture1_);
    }
  }
  for (QGroupBox* frame : frames_) frame->raise();
}

QPushButton* GeneratedFormFace::makeButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  button->resize(button->sizeHint());
  return button;
}

void GeneratedFormFace::makeButtons(const ApplicationModule& app) {
  OKButt_ = makeButton("OKButt", toQString(app.LoadResString(Message::OK)));
  CancelButt_ = makeButton("CancelButt", toQString(app.LoadResString(Message::Cancel)));
  const int band = pixelsFromTwips(form_layout::kAroundViewport - form_layout::kTabsHeight);
  extraBand_ = std::max(0, OKButt_->height() + 2 * HScroll1_->sizeHint().height() - band);
  connect(OKButt_, &QPushButton::clicked, this, &GeneratedFormFace::okClicked);
  connect(CancelButt_, &QPushButton::clicked, this, &GeneratedFormFace::cancelClicked);
}

void GeneratedFormFace::makeShortcuts() {
  // Return alone belongs to the boxes of several lines.
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* accept = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(accept, &QShortcut::activated, OKButt_, &QPushButton::click);
  }
  for (const int step : {-1, 1}) {
    auto* turn = new QShortcut(
        QKeySequence(Qt::CTRL | (step > 0 ? Qt::Key_PageDown : Qt::Key_PageUp)), this);
    connect(turn, &QShortcut::activated, this,
            [this, step] { TabStrip1_->setCurrentIndex(TabStrip1_->currentIndex() + step); });
  }
}

int GeneratedFormFace::tabsHeight() const {
  return pixelsFromTwips(form_layout::kTabsHeight) + extraTabs_;
}

int GeneratedFormFace::aroundViewport() const {
  return pixelsFromTwips(form_layout::kAroundViewport) + extraTabs_ + extraBand_;
}

int GeneratedFormFace::selectedTab() const {
  return TabStrip1_->currentIndex() + 1;
}

void GeneratedFormFace::hideAllBoxes() {
  for (QGroupBox* frame : frames_) frame->hide();
}

void GeneratedFormFace::TabStrip1_Click(int tab) {
  QWidget* before = window()->focusWidget();
  // Boxes that go would hand the focus on, from one to the next and at last to OK.
  if (before) TabStrip1_->setFocus(Qt::OtherFocusReason);
  giveCoveredBack();
  hideAllBoxes();
  if (!form_.tabs.isOwnTab(tab)) {
    const BoxRange boxes = form_.tabs.boxes(tab, static_cast<int>(frames_.size()));
    for (int box = boxes.first; box <= boxes.last; ++box) {
      QGroupBox& frame = *frames_[static_cast<std::size_t>(box) - 1];
      frame.raise();
      frame.show();
    }
  }
  restoreScroll();
  emit tabClicked(tab);
  if (before) focusAfterTurn(before);
}

FormMetrics GeneratedFormFace::metrics(const QSize& inner) const {
  return {{twipsFromPixels(inner.width()), twipsFromPixels(inner.height())},
          twipsFromPixels(VScroll1_->sizeHint().width()),
          twipsFromPixels(HScroll1_->sizeHint().height()),
          twipsFromPixels(OKButt_->height())};
}

void GeneratedFormFace::Form_Controls_Resize() {
  const auto places = placeControls(metrics(size() - QSize(0, extraTabs_ + extraBand_)), panel_);
  if (!places) return;
  const auto rect = [](const TwipsRect& twips) {
    return QRect(pixelsFromTwips(twips.left), pixelsFromTwips(twips.top),
                 pixelsFromTwips(twips.width), pixelsFromTwips(twips.height));
  };
  TabStrip1_->setGeometry(0, 0, width(), tabsHeight());
  Picture2_->setGeometry(rect(places->viewport).translated(0, extraTabs_));
  VScroll1_->setGeometry(rect(places->vScroll));
  VScroll1_->setVisible(places->vScrollVisible);
  HScroll1_->setGeometry(0, Picture2_->geometry().bottom() + 1, width(),
                         HScroll1_->sizeHint().height());
  HScroll1_->setVisible(places->hScrollVisible);
  HScroll1_->setPageStep(twipsFromPixels(width()));
  HScroll1_->setRange(0, -places->hScrollMax);
  const int margin = pixelsFromTwips(kButtonMargin);
  const int buttonTop = pixelsFromTwips(places->buttonTop) + extraTabs_ + extraBand_ / 2;
  CancelButt_->move(width() - margin - CancelButt_->width(), buttonTop);
  OKButt_->move(CancelButt_->x() - margin / 2 - OKButt_->width(), buttonTop);
  vScrollMax_ = places->vScrollMax;
  restoreScroll();
}

void GeneratedFormFace::restoreScroll() {
  scrollTo(clampedScroll(form_.arrTabScroll[selectedTab()], vScrollMax_));
}

void GeneratedFormFace::scrollTo(std::int16_t value) {
  form_.arrTabScroll.set(selectedTab(), value);
  Picture1_->move(Picture1_->x(), pixelsFromTwips(value));
  const QSignalBlocker quiet(VScroll1_);
  VScroll1_->setRange(0, std::max(0, -vScrollMax_));
  VScroll1_->setPageStep(twipsFromPixels(Picture2_->height()));
  VScroll1_->setValue(-value);
}

void GeneratedFormFace::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!window()->isMinimized()) Form_Controls_Resize();
}

void GeneratedFormFace::wheelEvent(QWheelEvent* event) {
  const int rotation = event->angleDelta().y();
  if (rotation == 0 || form_.tabs.isOwnTab(selectedTab())) {
    event->ignore();
    return;
  }
  scrollTo(wheelScroll(form_.arrTabScroll[selectedTab()], rotation, vScrollMax_));
}

}  // namespace velra
