// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <utility>

#include "scenario/Hands.h"
#include "widgets/ModalAnswer.h"
#include "widgets/QtText.h"

namespace velra::test {

/// Who works with the windows: chooses from menus with the mouse, and answers what they bring up.
/// Answers are prepared before the command that asks for them.
class Person {
 public:
  explicit Person(QWidget& window) : window_(window) {}
  ~Person() { EXPECT_TRUE(expected_.empty()) << "a window that was waited for did not come"; }
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  static void type(QWidget& window, const char* box, const char* text) {
    auto& line = control<QLineEdit>(window, box);
    line.selectAll();
    text[0] ? QTest::keyClicks(&line, QLatin1String(text)) : line.clear();
  }

  /// Opens the menu and clicks the entry; what that brings up has to be what was waited for.
  void choose(const char* menuName, const char* entry) {
    control<QMenu>(window_, menuName).popup(window_.mapToGlobal(QPoint(0, 0)));
    test::choose(entry);
    EXPECT_TRUE(std::exchange(expected_, {}).empty()) << entry;
  }

  /// The next modal window has this name; `act` has to close it, and may meet others meanwhile.
  void willMeet(const char* windowName, std::function<void(QWidget&)> act) {
    expected_.push_back({windowName, std::move(act)});
    if (expected_.size() == 1) lookOut();
  }
  /// A box with this text and, as its kind, this sign.
  void willAnswer(const std::string& text, QMessageBox::Icon sign, const char* button) {
    willMeet("msgBox", [=](QWidget& window) {
      const auto& box = dynamic_cast<QMessageBox&>(window);
      EXPECT_EQ(fromQString(box.text()), text);
      EXPECT_EQ(box.icon(), sign);
      press(window, button);
    });
  }
  /// The file dialog of this title, which has to propose the name.
  void willChooseFile(const std::string& title, const char* proposed, const std::string& path) {
    willMeet("dlgCommonDialog", [=](QWidget& window) {
      EXPECT_EQ(fromQString(window.windowTitle()), title);
      auto* name = window.findChild<QLineEdit*>();
      EXPECT_EQ(name->text(), QLatin1String(proposed));
      auto& dialog = dynamic_cast<QFileDialog&>(window);
      dialog.selectFile(pathToQString(path));
      static_cast<QDialog&>(dialog).accept();
    });
  }

 private:
  struct Meeting {
    const char* name;
    std::function<void(QWidget&)> act;
  };

  void lookOut() {
    auto* timer = new QTimer(&context_);
    QObject::connect(timer, &QTimer::timeout, &context_, [this, timer] {
      QWidget* modal = modalToAnswer();
      if (!modal || modal == met_ || expected_.empty()) return;
      timer->stop();
      timer->deleteLater();
      meet(*modal);
    });
    timer->start(5);
  }
  void meet(QWidget& window) {
    const Meeting meeting = std::move(expected_.front());
    expected_.pop_front();
    QWidget* const before = std::exchange(met_, &window);
    if (!expected_.empty()) lookOut();
    EXPECT_EQ(window.objectName(), QLatin1String(meeting.name));
    meeting.act(window);
    EXPECT_FALSE(window.isVisible()) << meeting.name;
    met_ = before;
  }

  QWidget& window_;
  QObject context_;
  std::deque<Meeting> expected_;
  QWidget* met_ = nullptr;
};

}  // namespace velra::test
