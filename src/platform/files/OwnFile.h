// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/files/FileStamp.h"

namespace velra {

/// The files that are a document's own: regular files directly inside its data folder, whose names
/// begin with that of the document, whatever links stand on the way to the folder. A link is never
/// one of them.
class OwnFiles {
 public:
  /// Of the document at an absolute path.
  explicit OwnFiles(const std::string& document);

  /// The data folder, with a separator at its end.
  const std::string& folder() const { return folder_; }

  bool owns(const std::string& path) const { return stampOfOwn(path).exists; }
  /// The stamp of one of them; of no file for any other path.
  FileStamp stampOfOwn(const std::string& path) const;

  /// True for a path directly inside the data folder, of whatever name, but for a link.
  bool holds(const std::string& path) const;

 private:
  bool isInside(const std::string& path) const;

  std::string prefix_;
  std::string folder_;
};

}  // namespace velra
