// SPDX-License-Identifier: GPL-3.0-or-later

// What the window does while long work runs.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <filesystem>

#include "scenario/Desktop.h"

namespace velra::test {
namespace {

/// Notes each text that a label paints, and whether the cursor is the busy one then.
class PaintedTexts : public QObject {
 public:
  explicit PaintedTexts(QLabel& label) : label_(label) { label_.installEventFilter(this); }

  QStringList texts;
  bool alwaysBusy = true;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    texts << label_.text();
    const QCursor* cursor = QGuiApplication::overrideCursor();
    alwaysBusy = alwaysBusy && cursor && cursor->shape() == Qt::WaitCursor;
    return false;
  }

  QLabel& label_;
};

TEST(Busy, AnOpeningPaintsItsProgressAndLetsCommandsWait) {
  Desktop desktop;
  desktop.start("");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&desktop.window));
  PaintedTexts painted(*desktop.window.findChild<QLabel*>(QStringLiteral("sbStatusBar_1")));
  int commands = 0;
  QMetaObject::invokeMethod(
      &desktop.window, [&] { ++commands; }, Qt::QueuedConnection);
  desktop.rules.OpenFile(desktop.sample());
  EXPECT_EQ(commands, 0);
  ASSERT_FALSE(painted.texts.isEmpty());
  EXPECT_TRUE(painted.texts.front().startsWith(QStringLiteral("Opening object n. ")));
  EXPECT_TRUE(painted.alwaysBusy);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  QTest::qWait(0);
  EXPECT_EQ(commands, 1);
}

TEST(Busy, AnOpeningCanBeLeftAndTakesNoKeysMeanwhile) {
  Desktop desktop;
  desktop.start("");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&desktop.window));
  const std::string data = desktop.folder / "sample/lighthouse_files/lighthouse_";
  for (int i = 0; i < 10000; ++i) {
    std::filesystem::copy_file(data + "version1.xml", data + "other" + std::to_string(i) + ".xml");
  }
  QCoreApplication::postEvent(&desktop.window,
                              new QKeyEvent(QEvent::KeyPress, Qt::Key_O, Qt::ControlModifier));
  QTimer::singleShot(0, &desktop.window, &QWidget::close);
  EXPECT_THROW(desktop.rules.OpenFile(desktop.sample()), LeftInWork);
  EXPECT_TRUE(desktop.window.isVisible());
  QTest::qWait(1);
  EXPECT_FALSE(desktop.window.isVisible());
}

}  // namespace
}  // namespace velra::test
