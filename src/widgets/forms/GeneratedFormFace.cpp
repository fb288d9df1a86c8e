// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/GeneratedFormFace.h"

#include <QPushButton>
#include <QShortcut>
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
      boxes_(*this),
      focus_(boxes_.panel(), boxes_.frames()) {
  const int extraBox = extraBoxHeight(*this);
  makeTabs();
  boxes_.makeBoxes(app, form_.fields, form_.crossLanguage, extraBox);
  boxes_.onScroll = [this](std::int16_t value) { scrollTo(value); };
  focus_.takeCoveredFromTabKey();
  makeButtons(app);
  makeShortcuts();
  TwipsSize size = panelSize(metrics(designSize()), form_.framePasses);
  const int rows = form_.framePasses > 0 ? kBoxesOfATab : static_cast<int>(boxes_.frames().size());
  size.height += twipsFromPixels(rows * extraBox);
  boxes_.setSize(size);
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
  extraBand_ = std::max(0, OKButt_->height() + 2 * pixelsFromTwips(boxes_.hScrollHeight()) - band);
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

void GeneratedFormFace::TabStrip1_Click(int tab) {
  QWidget* before = window()->focusWidget();
  // Boxes that go would hand the focus on, from one to the next and at last to OK.
  if (before) TabStrip1_->setFocus(Qt::OtherFocusReason);
  focus_.giveCoveredBack();
  hideAllBoxes();
  if (!form_.tabs.isOwnTab(tab)) {
    boxes_.showBoxes(form_.tabs.boxes(tab, static_cast<int>(boxes_.frames().size())));
  }
  restoreScroll();
  emit tabClicked(tab);
  if (before) focusAfterTurn(before);
}

FormMetrics GeneratedFormFace::metrics(const QSize& inner) const {
  return {{twipsFromPixels(inner.width()), twipsFromPixels(inner.height())},
          boxes_.vScrollWidth(),
          boxes_.hScrollHeight(),
          twipsFromPixels(OKButt_->height())};
}

void GeneratedFormFace::Form_Controls_Resize() {
  const auto places =
      placeControls(metrics(size() - QSize(0, extraTabs_ + extraBand_)), boxes_.size());
  if (!places) return;
  TabStrip1_->setGeometry(0, 0, width(), tabsHeight());
  boxes_.place(*places, extraTabs_);
  const int margin = pixelsFromTwips(kButtonMargin);
  const int buttonTop = pixelsFromTwips(places->buttonTop) + extraTabs_ + extraBand_ / 2;
  CancelButt_->move(width() - margin - CancelButt_->width(), buttonTop);
  OKButt_->move(CancelButt_->x() - margin / 2 - OKButt_->width(), buttonTop);
  restoreScroll();
}

void GeneratedFormFace::restoreScroll() {
  scrollTo(clampedScroll(form_.arrTabScroll[selectedTab()], boxes_.vScrollMax()));
}

void GeneratedFormFace::scrollTo(std::int16_t value) {
  form_.arrTabScroll.set(selectedTab(), value);
  boxes_.scrollTo(value);
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
  scrollTo(wheelScroll(form_.arrTabScroll[selectedTab()], rotation, boxes_.vScrollMax()));
}

void GeneratedFormFace::focusAfterTurn(QWidget* before) {
  if (before == TabStrip1_) return;
  if (focus_.holds(*before)) return before->setFocus(Qt::OtherFocusReason);
  if (QWidget* first = focus_.firstControlInSight()) first->setFocus(Qt::TabFocusReason);
}

void GeneratedFormFace::focusFirstBox() {
  QWidget* first = focus_.firstControlInSight();
  (first ? first : OKButt_)->setFocus(Qt::TabFocusReason);
}

bool GeneratedFormFace::focusNextPrevChild(bool next) {
  const bool moved = QWidget::focusNextPrevChild(next);
  const QGroupBox* frame = moved ? focus_.frameAround(window()->focusWidget()) : nullptr;
  if (frame) scrollTo(boxes_.scrollShowing(*frame, form_.arrTabScroll[selectedTab()]));
  return moved;
}

}  // namespace velra
