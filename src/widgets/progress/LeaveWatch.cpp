// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/progress/LeaveWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace velra {

namespace {

constexpr int kQuietWork = 250;  // milliseconds
constexpr int kRunMilliseconds = 100;

bool beginsCommands(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

void LeaveWatch::begin() {
  sinceBegun_.start();
  sinceRun_.start();
  asked_ = false;
}

bool LeaveWatch::isAsked() {
  if (asked_ || sinceBegun_.elapsed() < kQuietWork || sinceRun_.elapsed() < kRunMilliseconds) {
    return asked_;
  }
  qApp->installEventFilter(this);
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
  sinceRun_.start();
  if (asked_) QTimer::singleShot(0, &window_, &QWidget::close);
  return asked_;
}

// A signal that ends the program comes as an event, too.
bool LeaveWatch::eventFilter(QObject* receiver, QEvent* event) {
  const bool closes = event->type() == QEvent::Close && receiver == &window_;
  if (closes || event->type() == QEvent::Quit) {
    asked_ = true;
    event->ignore();
    return true;
  }
  return beginsCommands(event->type());
}

}  // namespace velra
