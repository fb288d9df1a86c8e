// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/ToolActor.h"

namespace velra::test {
namespace {

[[maybe_unused]] const bool kScenesOfTool = makeScenes<ToolActor>("tool");

}  // namespace
}  // namespace velra::test
