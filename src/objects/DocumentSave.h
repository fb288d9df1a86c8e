// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "store/PlannedRemovals.h"

namespace velra {

class ApplicationModule;
class AVDocument;
class DescribedObject;
class IOManager;
class ObjectRegistry;

/// Tells in boxes of a save that failed, first of the reason if there is one. Always false.
bool bRefused(ApplicationModule& app, const std::string& reason);

/// How a document is saved with all of its objects, and what of that is taken back when it fails.
/// One instance is made for one command.
class DocumentSave {
 public:
  DocumentSave(ApplicationModule& app, AVDocument& document);

  /// What `AVDocument` has under the same name.
  bool bSave();

 private:
  void renumber(DescribedObject& object);
  bool bSaveAllObjects();
  bool bWriteAll();
  PlannedRemovals::Change removals();

  ApplicationModule& app_;
  AVDocument& document_;
  ObjectRegistry& objects_;
  IOManager& io_;
};

}  // namespace velra
