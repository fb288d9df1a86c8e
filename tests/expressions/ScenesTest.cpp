// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DocumentActor.h"

namespace velra::test {
namespace {

[[maybe_unused]] const bool kScenesOfExpressions = makeScenes<DocumentActor>("expressions");

}  // namespace
}  // namespace velra::test
