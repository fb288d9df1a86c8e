// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/ProgressBox.h"

#include <QCoreApplication>

namespace velra {

namespace {

constexpr qint64 kUnnoticed = 200;  // milliseconds
constexpr qint64 kBetweenLooks = 40;

}  // namespace

ProgressBox::ProgressBox(const QString& sentence, QWidget* owner)
    : box_(sentence, owner, nullptr), next_(kBetweenLooks) {
  box_.setModal(true);
  since_.start();
}

void ProgressBox::show(double share) {
  if (since_.elapsed() < next_) return;
  next_ = since_.elapsed() + kBetweenLooks;
  if (since_.elapsed() >= kUnnoticed) {
    box_.setShare(share);
    box_.setVisible(true);
  }
  // A signal that ends the program comes by a socket, and has to wait too.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                  QEventLoop::ExcludeSocketNotifiers);
}

}  // namespace velra
