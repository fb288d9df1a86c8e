// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainStatusBar.h"

#include <QDateTime>
#include <QLabel>
#include <QLocale>

#include "widgets/Announcer.h"
#include "widgets/Texts.h"
#include "widgets/progress/WorkBar.h"

namespace velra {

namespace {

constexpr int kRedrawMilliseconds = 50;
constexpr int kClockMilliseconds = 1000;
constexpr int kSpokenMilliseconds = 1000;

}  // namespace

MainStatusBar::MainStatusBar(QWidget* parent)
    : QStatusBar(parent),
      text_(addPanel("sbStatusBar_1", Texts::tr("Status"), 1)),
      bar_(new WorkBar(this)),
      date_(addPanel("sbStatusBar_2", Texts::tr("Date"), 0)),
      time_(addPanel("sbStatusBar_3", Texts::tr("Time"), 0)),
      announcer_(new Announcer(this)) {
  setObjectName(QStringLiteral("sbStatusBar"));
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // never widens the window
  insertPermanentWidget(1, bar_);
  later_.setSingleShot(true);
  connect(&later_, &QTimer::timeout, this, &MainStatusBar::drawText);
  // Not over what a window says of itself when it appears: that would be cut off.
  spoken_.setObjectName(QStringLiteral("tmrSpoken"));
  spoken_.setSingleShot(true);
  connect(&spoken_, &QTimer::timeout, this, [this] {
    if (window()->isActiveWindow()) announcer_->say(pending_);
  });
  connect(&clock_, &QTimer::timeout, this, &MainStatusBar::updateClock);
  clock_.start(kClockMilliseconds);
  updateClock();
}

QLabel* MainStatusBar::addPanel(const char* name, const QString& meaning, int stretch) {
  auto* label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setAccessibleDescription(meaning);
  label->setTextFormat(Qt::PlainText);
  label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  label->setMargin(2);
  addPermanentWidget(label, stretch);
  return label;
}

void MainStatusBar::showProgress(std::size_t done, std::size_t total) {
  bar_->follow(done, total);
}

void MainStatusBar::showText(const QString& text) {
  pending_ = text;
  spoken_.start(kSpokenMilliseconds);
  if (sinceDrawn_.isValid() && sinceDrawn_.elapsed() < kRedrawMilliseconds) {
    if (!later_.isActive()) later_.start(kRedrawMilliseconds);
    return;
  }
  drawText();
}

void MainStatusBar::drawText() {
  text_->setText(pending_);
  text_->setToolTip(pending_.toHtmlEscaped());  // whole, also in a narrow window
  text_->repaint();
  sinceDrawn_.start();
}

void MainStatusBar::updateClock() {
  const QDateTime now = QDateTime::currentDateTime();
  const QLocale locale;
  date_->setText(locale.toString(now.date(), QLocale::ShortFormat));
  time_->setText(locale.toString(now.time(), QLocale::ShortFormat));
}

}  // namespace velra
