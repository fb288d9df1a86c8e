// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "rescue/RescueRecords.h"

namespace velra {

/// A few bytes for each block of a content, by which the block is known again.
std::string blocksOf(std::string_view bytes);

/// How a file of a plan stands there now.
enum class FileState {
  Untouched,  // as when the save was planned
  Torn,       // with old and new blocks, or cut off
  Written,    // with all of its new bytes
  Changed,    // by somebody else since: the plan knows nothing of it
};

/// The state of a planned file, and its bytes as far as there are any. Why it cannot be told, or
/// "".
std::string strStateOf(const PlannedFile& file, FileState& state, std::string& bytes);

}  // namespace velra
