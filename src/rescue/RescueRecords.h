// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/files/Files.h"

namespace velra {

/// One opening of one document by one running program, as the store numbers it.
using SessionId = std::int64_t;

/// How a session came to its end.
enum class SessionEnd {
  Running,  // it has not ended yet, or was killed
  Left,     // the document was closed, or the program left, without a save
  Error,    // an untrapped error ended the program
};

/// An object, or a key-frame picture, that differs from its file.
struct KeptObject {
  std::string path;       // its identifier
  std::string className;  // "MediaObject" for a picture
  std::string title;
  std::string bytes;  // as a save would write them; of a removed object none
  bool removed = false;
  FileStamp stamp;  // of the file when it was read or last written by this session
};

/// What is kept of one session, for a person to choose from.
struct KeptWork {
  SessionId session = 0;
  std::string document;
  std::string process;       // who made it
  std::int64_t changed = 0;  // when the last change was kept, seconds since 1970
  SessionEnd end = SessionEnd::Running;
  std::vector<std::string> titles;  // of the objects that are kept, removed ones included
  bool replaced = false;  // what is kept are other programs' files that this session wrote over
};

/// A file that a save brings to new bytes.
struct PlannedFile {
  std::string path;
  std::string bytes;
  FileStamp stamp;     // of what it writes over
  std::string blocks;  // the same, block by block: `blocksOf`
};

/// A file that goes when the document is closed.
struct PlannedRemoval {
  std::string path;
  FileStamp stamp;  // another file of the name stays
};

/// All that a save will do to files, told before the first is touched.
struct SavePlan {
  std::vector<PlannedFile> files;  // in the order of writing
  std::vector<PlannedRemoval> removals;
  /// What earlier saves of the session have planned to go is to go as well, but for these paths.
  bool addsRemovals = false;
  std::vector<std::string> stays = {};
};

/// A file that a save under another name makes where none was.
struct MadeFile {
  std::string path;
  std::string movedFrom;  // empty for a new one
};

/// All that a save under another name will do. The files that are made are on the disk before that
/// of the document, the only one that may be written over, is touched.
struct CopyPlan {
  PlannedFile document;  // without bytes as long as these are not known
  std::vector<MadeFile> made;
  /// A folder, with a separator at its end, in which they are until all are there; "" for none.
  std::string hidden = {};
};

}  // namespace velra
