// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {

/// What a save has written and the disk may not hold yet.
class UnflushedFiles {
 public:
  /// Bytes came into a file that stood there.
  void written(const std::string& path);
  /// A file came under a new name.
  void made() { made_ = true; }

  /// Brings it to the disk. The failure's description, or "". Nothing is done before something was
  /// written: a new picture waits for the object that names it.
  std::string strFlush();

 private:
  std::vector<std::string> paths_;  // no more than decide how they are brought to the disk
  bool made_ = false;
};

}  // namespace velra
