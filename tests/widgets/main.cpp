#include <gtest/gtest.h>

#include "widgets/GuardedApplication.h"

// The tests of the windows have an application, and neither display nor sound.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  velra::GuardedApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("velra"));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
