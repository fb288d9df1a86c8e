// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velra {

class ObjectRegistry;

/// The files of removed objects. They stay on the disk until the document has been saved without
/// them and closed, so that a session that ends otherwise loses nothing.
class RemovedFiles {
 public:
  /// In the order in which they were added; one may stand here twice.
  const std::vector<std::string>& identifiers() const { return identifiers_; }

  void add(const std::string& guid) { identifiers_.push_back(guid); }

  /// Takes the identifiers of living objects out again.
  void keepFilesOf(ObjectRegistry& objects);

  /// Empties the list through a function that deletes one file and gives the reason when it cannot.
  /// The identifiers that could not be deleted and the last reason, or "".
  std::string deleteAll(const std::function<std::string(const std::string&)>& deleteFile);

 private:
  std::vector<std::string> identifiers_;
};

}  // namespace velra
