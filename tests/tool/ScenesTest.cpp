// SPDX-License-Identifier: GPL-3.0-or-later

// Player, timeline, strip and segments together: tests/tool/scenes tells what comes of each act.
#include <gtest/gtest.h>

#include "tool/ToolActor.h"

namespace velra::test {
namespace {

class ToolScenes : public ::testing::TestWithParam<Scene> {};

TEST_P(ToolScenes, ComeAsTold) {
  ToolActor().play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Scenes, ToolScenes, ::testing::ValuesIn(scenesIn("tool")), sceneName);

}  // namespace
}  // namespace velra::test
