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

/// What whoever opens a document should know: that a program that runs has it open, or that unsaved
/// work is kept. "" for nothing.
std::string strTellOfOthers(RescueStore& store, const std::string& document);

/// The time of a change as people read it, in local time: "2026-11-25 18:30".
std::string strWhen(std::int64_t secondsSince1970);

/// What is kept of one session, in the order of keeping.
std::vector<KeptObject> keptObjects(RescueStore& store, SessionId session);

/// Drops what was last changed before `oldest`, in seconds since 1970, and the oldest beyond so
/// many bytes. Sessions whose process may be running stay, and count for nothing.
void pruneKeptWork(RescueStore& store, std::int64_t oldest, std::int64_t bytes);

}  // namespace velra
