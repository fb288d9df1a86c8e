// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra::bench {

/// A folder for the files of one part of a run.
///
/// What was deleted a minute ago slows the making of new files: ext4 does not take their numbers
/// again so soon and looks past all of them each time, which made a Save As ten times slower in a
/// group of blocks that an earlier run had emptied. So nothing is deleted before the whole run has
/// ended, and the file system is asked to put each folder of this one into a group of its own.
class RunFolder {
 public:
  explicit RunFolder(const std::string& parent);
  ~RunFolder();
  RunFolder(const RunFolder&) = delete;
  RunFolder& operator=(const RunFolder&) = delete;

  const std::string& path() const { return path_; }

  /// Removes the folders of this run below the parent, and what an interrupted one has left.
  static void removeAll(const std::string& parent);

  /// A new folder below it.
  std::string make(const std::string& name);

 private:
  std::string path_;
  std::string before_;  // the current folder, which a document changes
};

}  // namespace velra::bench
