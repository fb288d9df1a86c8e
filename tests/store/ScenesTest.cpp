// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DocumentActor.h"

namespace velra::test {
namespace {

[[maybe_unused]] const bool kScenesOfStore = makeScenes<DocumentActor>("store");

}  // namespace
}  // namespace velra::test
