// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QGuiApplication>

#include "platform/UserInterface.h"

namespace velra {

/// The busy cursor for as long as the object lives.
class BusyCursor : public BusySign {
 public:
  BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyCursor() override { QGuiApplication::restoreOverrideCursor(); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
};

/// The common cursor while a box asks something in the midst of work.
class QuestionCursor {
 public:
  QuestionCursor() : changed_(QGuiApplication::overrideCursor() != nullptr) {
    if (changed_) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~QuestionCursor() {
    if (changed_) QGuiApplication::restoreOverrideCursor();
  }
  QuestionCursor(const QuestionCursor&) = delete;
  QuestionCursor& operator=(const QuestionCursor&) = delete;

 private:
  bool changed_;
};

}  // namespace velra
