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

/// Sessions whose save was not finished, or whose removed files are still there: of one document,
/// or of all for "". Without titles.
std::vector<KeptWork> interruptedSaves(RescueStore& store, const std::string& document);

/// True when a program may be at work in the session.
bool isRunning(const KeptWork& work);

/// True when a program that may be running, this one among them, has the document open.
bool isOpen(RescueStore& store, const std::string& document);

/// What a person may bring back: unsaved work, but that of the document that this process has open,
/// and files that a save has replaced, with their names as titles. What is of the document `first`
/// comes first, then the latest.
std::vector<KeptWork> restorableWork(RescueStore& store, const std::string& first);
bool hasRestorableWork(RescueStore& store);

/// How work came to be kept, as people are told.
enum class Fate { Left, Error, CutOff, StillOpen, Replaced };
Fate fateOf(const KeptWork& work);

/// What whoever opens a document should know.
struct OthersAtWork {
  bool open = false;      // a program that runs has it open
  std::int64_t kept = 0;  // when unsaved work was changed last; 0 for none
};
OthersAtWork othersAtWork(RescueStore& store, const std::string& document);

/// The time of a change as people read it, in local time: "2026-11-25 18:30".
std::string strWhen(std::int64_t secondsSince1970);

/// What is kept of one session, in the order of keeping.
std::vector<KeptObject> keptObjects(RescueStore& store, SessionId session);
/// The same of what `restorableWork` lists.
std::vector<KeptObject> keptObjects(RescueStore& store, const KeptWork& work);

/// Drops that and no more: a save that was cut off is still finished at the next opening.
void dropKeptWork(RescueStore& store, const KeptWork& work);

/// Drops what was last changed before `oldest`, in seconds since 1970, and the oldest beyond so
/// many bytes. Sessions whose process may be running stay, and count for nothing.
void pruneKeptWork(RescueStore& store, std::int64_t oldest, std::int64_t bytes);

}  // namespace velra
