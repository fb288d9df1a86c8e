// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class RescueStore;

/// Carries the saves of a document to their end that were under way when their program died: their
/// files are brought to the new bytes, and what they removed goes. Other programs' bytes in a place
/// that is written over are kept in the store. To be called before the document is read. What was
/// done, or what could not be done and is tried again next time, as one sentence; "" for nothing.
/// Raises DatabaseError.
std::string finishInterruptedSaves(RescueStore& store, const std::string& document);

}  // namespace velra
