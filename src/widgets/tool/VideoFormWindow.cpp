// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/VideoFormWindow.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <utility>

#include "shell/LoadedVideoForm.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/forms/GeneratedFormFace.h"
#include "widgets/keys/ToolKeys.h"
#include "widgets/picture/LargePicture.h"
#include "widgets/picture/MoviePictures.h"
#include "widgets/picture/VideoPictureWidget.h"
#include "widgets/tool/RangeDialogWindow.h"
#include "widgets/tool/ToolPanel.h"

namespace velra {

namespace {

constexpr int kPositionInterval = 200;
constexpr int kTimeCodeBlinkInterval = 500;
constexpr int kRoomBelow = 120;          // pixels more than the tool needs, for the fields
constexpr double kShareOfScreen = 0.94;  // the strip is wanted wide

}  // namespace

VideoFormWindow::VideoFormWindow(const ApplicationModule& app, QWidget* owner)
    : QDialog(owner), app_(app), announcer_(*new Announcer(this)) {
  setObjectName(QStringLiteral("VideoForm"));
  setModal(true);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  makeTimers();
}

VideoFormWindow::~VideoFormWindow() = default;

void VideoFormWindow::makeTimers() {
  Timer1_.setInterval(kPositionInterval);
  BlinkerTimer_.setInterval(kTimeCodeBlinkInterval);
  connect(&Timer1_, &QTimer::timeout, this, [this] { form_->tool().player.Timer1(); });
  connect(&BlinkerTimer_, &QTimer::timeout, this,
          [this] { form_->tool().segments.BlinkerTimer(); });
}

void VideoFormWindow::build(LoadedVideoForm& form) {
  form_ = &form;
  setWindowTitle(windowTitleText(form.caption()));
  generated_ = new GeneratedFormFace(
      app_, {form.fields(), form.tabs(), form.arrTabScroll(), nullptr, form.framePasses()}, this);
  makePanelView();
  connect(generated_, &GeneratedFormFace::okClicked, this, [this] { form_->OKButt_Click(); });
  connect(generated_, &GeneratedFormFace::cancelClicked, this,
          [this] { form_->CancelButt_Click(); });
  connect(generated_, &GeneratedFormFace::tabClicked, this, [this](int tab) { showTab(tab); });
  generated_->hideAllBoxes();
  makeLargePicture();
  chooseSize();
  panel_->focusFirst();
}

void VideoFormWindow::makePanelView() {
  panelView_ = new QScrollArea(this);
  panelView_->setObjectName(QStringLiteral("ToolView"));
  panelView_->setFrameStyle(QFrame::NoFrame);
  panelView_->setFocusPolicy(Qt::NoFocus);
  panel_ = new ToolPanel(app_, form_->tool(), panelView_);
  panelView_->setWidget(panel_);
}

void VideoFormWindow::makeLargePicture() {
  largePicture_ = std::make_unique<LargePicture>(panel_->pictures(), this);
  largePicture_->setWindowTitle(windowTitle());
  keys_ = std::make_unique<ToolKeys>(ToolKeys::Windows{*this, *panel_, *largePicture_},
                                     form_->tool(), app_);
  connect(&panel_->picture(), &VideoPictureWidget::doubleClicked, largePicture_.get(),
          &LargePicture::present);
}

void VideoFormWindow::unbuild() {
  Timer1_.stop();
  BlinkerTimer_.stop();
  keys_.reset();
  largePicture_.reset();
  panel_ = nullptr;
  delete std::exchange(panelView_, nullptr);
  delete std::exchange(generated_, nullptr);
  form_ = nullptr;
}

void VideoFormWindow::chooseSize() {
  const QSize least = panel_->leastSize() + QSize(0, generated_->aroundViewport());
  setMinimumSize(least);
  const QSize wanted = screen()->availableSize() * kShareOfScreen;
  resize(qMax(least.width(), wanted.width()),
         qBound(least.height(), wanted.height(), least.height() + kRoomBelow));
  placeParts();
}

void VideoFormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (panel_) placeParts();
}

void VideoFormWindow::placeParts() {
  generated_->setGeometry(rect());
  panelView_->setGeometry(0, generated_->tabsHeight(), width(),
                          height() - generated_->aroundViewport());
  panel_->resize(panelSize());
  panel_->LayoutControls();
}

// All the room there is, and where that is too little, what the panel needs beside scroll bars.
QSize VideoFormWindow::panelSize() const {
  const QSize least = panel_->leastSize();
  QSize room = panelView_->size();
  const bool isLow = room.height() < least.height();
  const bool isNarrow = room.width() < least.width();
  if (isLow) room.rwidth() -= panelView_->verticalScrollBar()->sizeHint().width();
  if (isNarrow) room.rheight() -= panelView_->horizontalScrollBar()->sizeHint().height();
  return room.expandedTo(least);
}

void VideoFormWindow::showTab(int tab) {
  const bool own = form_->tabs().isOwnTab(tab);
  panelView_->setVisible(own);
  if (own) panelView_->raise();
}

void VideoFormWindow::showModally() {
  QDialog::exec();
}

void VideoFormWindow::closeWindow() {
  done(Accepted);
}

void VideoFormWindow::reject() {
  form_->CancelButt_Click();
}

void VideoFormWindow::movieOpens(MediaGraph& movie) {
  panel_->pictures().showMovie(&movie);
}

void VideoFormWindow::movieCloses() {
  panel_->pictures().showMovie(nullptr);
}

void VideoFormWindow::showTimeCode(const std::string& text) {
  panel_->showTimeCode(toQString(text));
}

void VideoFormWindow::swapTimeCodeColours(bool swapped) {
  panel_->swapTimeCodeColours(swapped);
}

void VideoFormWindow::runTimer1(bool on) {
  on ? Timer1_.start() : Timer1_.stop();
}

void VideoFormWindow::runBlinkerTimer(bool on) {
  on ? BlinkerTimer_.start() : BlinkerTimer_.stop();
}

void VideoFormWindow::showTranscript(const std::string& text) {
  panel_->showTranscript(toQString(text));
}

void VideoFormWindow::appendTranscript(const std::string& text) {
  panel_->appendTranscript(toQString(text));
}

void VideoFormWindow::showRangeDialog(RangeDialog& dialog) {
  RangeDialogWindow(dialog, this).exec();
}

void VideoFormWindow::runPendingEvents() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void VideoFormWindow::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) return;
  if (!isReturn) return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

}  // namespace velra
