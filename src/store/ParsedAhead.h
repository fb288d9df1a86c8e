// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"

namespace velra {

class ReadersAhead;

/// The files of a list, which threads of its own read and parse ahead of the one that takes them,
/// in the order of the list. They look at the pictures that these name, too. Where a shelf far away
/// is waited for there are more threads than cores.
class ParsedAhead {
 public:
  struct Wanted {
    std::string path;
    FileStamp known;  // a file that is as it was then is not read
  };
  struct Picture {
    std::string path;
    FileStamp stamp;
  };
  struct File {
    FileStamp stamp;  // before it was read
    bool otherNames = false;
    bool known = false;
    bool parsed = false;  // else the document has the reason
    XmlDocument document;
    std::optional<Picture> picture;  // that the document names, if it is a good one
    std::exception_ptr raised;
  };

  struct Calls {
    /// The path of the picture that a document names, or "". Asked on any thread. Without it no
    /// picture is looked at.
    std::function<std::string(const XmlDocument&)> pictureOf;
    /// Called some ten times in a second while a file is waited for, by the one that takes.
    std::function<void()> waits;
  };

  explicit ParsedAhead(std::vector<Wanted> files, Calls calls = {});
  ParsedAhead(const ParsedAhead&) = delete;
  ParsedAhead& operator=(const ParsedAhead&) = delete;
  /// A thread that still waits for its file then is left to itself, and does no more.
  ~ParsedAhead();

  /// The next file, until the next call. To be called as often as there are files. Raises what its
  /// reading raised, and what `waits` raises.
  const File& take();

 private:
  Calls calls_;
  std::shared_ptr<ReadersAhead> readers_;  // which they hold, too
  File current_;
};

}  // namespace velra
