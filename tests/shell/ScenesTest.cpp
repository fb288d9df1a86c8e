// SPDX-License-Identifier: GPL-3.0-or-later

// The commands of the main window, without its pixels: tests/shell/scenes tells what comes of them.
#include <gtest/gtest.h>

#include "shell/ProgramActor.h"

namespace velra::test {
namespace {

class ProgramScenes : public ::testing::TestWithParam<Scene> {};

TEST_P(ProgramScenes, ComeAsTold) {
  ProgramActor().play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Scenes, ProgramScenes, ::testing::ValuesIn(scenesIn("shell")), sceneName);

}  // namespace
}  // namespace velra::test
