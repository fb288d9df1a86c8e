// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/GuardedApplication.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "base/RunTimeError.h"
#include "widgets/ModalAnswer.h"

namespace velra {
namespace {

// Answers the box and prints what it shows beside what the guard prints by itself.
void answerTheBox() {
  test::whenModal([](QWidget& window) {
    const auto& box = dynamic_cast<QMessageBox&>(window);
    std::fprintf(stderr, "box %d: %s\n", box.icon(), box.text().toUtf8().constData());
    box.button(QMessageBox::Ok)->click();
  });
}

TEST(GuardedApplicationTest, AnUntrappedErrorInAnEventIsShownOnceAndEndsTheProgram) {
  EXPECT_EXIT(
      {
        std::atexit([] { std::fprintf(stderr, "a step of the shutdown\n"); });
        answerTheBox();
        QTimer::singleShot(0, [] { raise(kNoObject, "gAVDoc"); });
        QEventLoop().exec();
      },
      ::testing::ExitedWithCode(1), "^[^\n]*gAVDoc\n.*box 3: [^\n]*gAVDoc\n$");
}

TEST(GuardedApplicationTest, SoDoesOneDuringTheStart) {
  auto& application = dynamic_cast<GuardedApplication&>(*qApp);
  EXPECT_EXIT(
      {
        answerTheBox();
        application.guarded([] { throw std::runtime_error("no memory"); });
      },
      ::testing::ExitedWithCode(1), "^no memory\n.*box 3: no memory\n$");
  bool ran = false;
  application.guarded([&ran] { ran = true; });
  EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace velra
