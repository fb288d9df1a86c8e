// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ProgramActor.h"

namespace velra::test {
namespace {

[[maybe_unused]] const bool kScenesOfShell = makeScenes<ProgramActor>("shell");

}  // namespace
}  // namespace velra::test
