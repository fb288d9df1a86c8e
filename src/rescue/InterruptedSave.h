// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "rescue/RescueTexts.h"

namespace velra {

class RescueStore;

/// Carries saves to their end that were under way when their program died: their files are brought
/// to the new bytes, and what they removed goes; a save under another name that had not come to the
/// document's own file is undone. A file that has been changed by somebody else since is left
/// alone; what its save would have written is then kept as unsaved work. The saves of all documents
/// are looked after, but for those that a running program has open. To be called before a document
/// is read, with its absolute path, or with "" for none. What was done, or what could not be done
/// and is tried again next time, in sentences; "" for nothing. Raises DatabaseError.
std::string finishInterruptedSaves(RescueStore& store, const std::string& document,
                                   const RescueTexts& texts = rescueTexts(false));

}  // namespace velra
