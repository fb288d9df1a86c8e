// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/WaitingBox.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>

#include "widgets/Texts.h"

namespace velra {

namespace {

constexpr int kLookInterval = 15;

// Most movies open sooner, and nobody has to see that.
constexpr std::chrono::milliseconds kUnnoticedWait{200};
constexpr std::chrono::milliseconds kBetweenEvents{2};

bool isDone(const std::future<void>& work) {
  return work.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace

bool isDoneUnnoticed(const std::future<void>& work) {
  const auto end = std::chrono::steady_clock::now() + kUnnoticedWait;
  while (work.wait_for(kBetweenEvents) == std::future_status::timeout) {
    if (std::chrono::steady_clock::now() >= end) return false;
    // A signal that ends the program comes by a socket, and has to wait too.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
  }
  return true;
}

WaitingBox::WaitingBox(const QString& text, QWidget* owner, std::stop_source* stop)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), stop_(stop) {
  setObjectName(QStringLiteral("WaitingBox"));
  setWindowTitle(QCoreApplication::applicationName());
  auto* column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  auto* label = new QLabel(text, this);
  label->setObjectName(QStringLiteral("lblWaiting"));
  bar_ = new QProgressBar(this);
  bar_->setObjectName(QStringLiteral("barWaiting"));
  bar_->setAccessibleName(text);
  bar_->setRange(0, 0);  // how much is left is not known
  column->addWidget(label);
  cancel_ = new QPushButton(Texts::tr("Cancel"), this);
  cancel_->setObjectName(QStringLiteral("cmdCancel"));
  cancel_->setAutoDefault(false);  // the key that opened the movie may still be down
  connect(cancel_, &QPushButton::clicked, this, &WaitingBox::reject);
  cancel_->setVisible(stop_ != nullptr);
  column->addWidget(bar_);
  column->addWidget(cancel_, 0, Qt::AlignRight);
}

void WaitingBox::setShare(double share) {
  constexpr int kSteps = 1000;
  bar_->setRange(0, kSteps);
  bar_->setValue(static_cast<int>(share * kSteps));
}

void WaitingBox::reject() {
  if (stop_) stop_->request_stop();
  cancel_->setEnabled(false);  // seen to be pressed: the work may take a moment to notice
}

void WaitingBox::showUntil(const std::future<void>& done, const std::atomic<double>* share) {
  QTimer look;
  connect(&look, &QTimer::timeout, this, [&] {
    if (share) setShare(*share);
    if (isDone(done)) accept();
  });
  look.start(kLookInterval);
  exec();
}

}  // namespace velra
