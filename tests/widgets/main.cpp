// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTemporaryFile>

#include "widgets/GuardedApplication.h"

namespace {

// Where most tests stand, and a screen of 1920 x 1080 at 200 % beside it.
constexpr const char* kScreens = R"({"screens": [
  {"name": "wide", "x": 0, "y": 0, "width": 1280, "height": 1024},
  {"name": "small", "x": 1280, "y": 0, "width": 960, "height": 540}]})";

}  // namespace

// The tests of the windows have an application, and neither display nor sound.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QTemporaryFile screens;
  if (!screens.open() || screens.write(kScreens) < 0 || !screens.flush()) return 1;
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
  qputenv("SDL_AUDIODRIVER", "dummy");
  velra::GuardedApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("velra"));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
