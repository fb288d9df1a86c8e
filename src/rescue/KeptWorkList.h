// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "rescue/RescueRecords.h"

namespace velra {

class RescueStore;

// What the store holds. Every function raises DatabaseError.

/// Sessions in which unsaved work is kept, the latest first: of one document, or of all for "".
std::vector<KeptWork> keptWork(RescueStore& store, const std::string& document);

/// Sessions of a document whose save was not finished, or whose removed files are still there.
std::vector<KeptWork> interruptedSaves(RescueStore& store, const std::string& document);

/// True when a program that runs has the document open.
bool isOpenElsewhere(RescueStore& store, const std::string& document);

/// What is kept of one session, in the order of keeping.
std::vector<KeptObject> keptObjects(RescueStore& store, SessionId session);

/// Drops what was last changed before `oldest`, in seconds since 1970, and the oldest beyond so
/// many bytes. Sessions whose process may be running stay, and count for nothing.
void pruneKeptWork(RescueStore& store, std::int64_t oldest, std::int64_t bytes);

}  // namespace velra
