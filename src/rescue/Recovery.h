// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "rescue/RescueRecords.h"

namespace velra {

/// What came of a recovery.
struct Recovered {
  std::string failure;             // empty on success; else nothing was left at the new place
  std::vector<std::string> notes;  // a sentence each, for a person to look at what it names
  std::size_t files = 0;
};

/// Files of kept objects that are not what they were when the objects were read, in order: what the
/// disk holds of these and what is kept are two states, of which a document can have one.
std::vector<std::string> changedSince(const std::vector<KeptObject>& kept);

/// Makes a complete document at a new path, which no file has yet: the files of a document with
/// what is kept laid over them, new objects and pictures included, removed ones left out, and each
/// reference between them following to the new place; movies stay where they are. The document
/// itself is only read.
Recovered recoverDocument(const std::string& document, const std::vector<KeptObject>& kept,
                          const std::string& newPath);

/// The path that a person is offered: beside the document, with "-recovered" behind its name.
std::string proposedRecoveryPath(const std::string& document);

}  // namespace velra
