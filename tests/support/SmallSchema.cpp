// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SmallSchema.h"

#include "platform/files/Files.h"

namespace velra::test {

const std::string kSmallSchema = readFile(VELRA_SOURCE_DIR "/tests/data/small.xsd").bytes;

}  // namespace velra::test
